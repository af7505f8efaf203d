#pragma once

#include <optional>
#include <string>

namespace orlen {

/// A language model on this machine. Requests are independent of each other.
class LanguageModel {
public:
    LanguageModel() = default;
    LanguageModel(const LanguageModel&) = delete;
    LanguageModel& operator=(const LanguageModel&) = delete;
    virtual ~LanguageModel() = default;

    /// Whether it can be asked now. Quick; any thread.
    [[nodiscard]] virtual bool isAvailable() const = 0;
    /// Its reply; nothing on failure. Blocks for seconds: never call from the main thread.
    [[nodiscard]] virtual std::optional<std::string> respond(const std::string& instructions,
                                                             const std::string& prompt) const = 0;

    /// The operating system's model. Linux has none: never available, and fails when asked.
    [[nodiscard]] static const LanguageModel& ofSystem();
};

} // namespace orlen

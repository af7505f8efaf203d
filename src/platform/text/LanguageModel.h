#pragma once

#include <optional>
#include <string>

namespace orlen {

/// A language model that runs on this machine. Each request stands alone: nothing is remembered between two.
class LanguageModel {
public:
    LanguageModel() = default;
    LanguageModel(const LanguageModel&) = delete;
    LanguageModel& operator=(const LanguageModel&) = delete;
    virtual ~LanguageModel() = default;

    /// Whether it can be asked now. Quick, any thread.
    [[nodiscard]] virtual bool isAvailable() const = 0;
    /// What it writes; nothing when it fails. Blocks for seconds: never call from the window's main thread.
    [[nodiscard]] virtual std::optional<std::string> respond(const std::string& instructions,
                                                             const std::string& prompt) const = 0;

    /// The one that the operating system offers. Linux offers none: never available, fails when asked.
    [[nodiscard]] static const LanguageModel& ofSystem();
};

} // namespace orlen

#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

struct UCollator;

namespace orlen {

/// The sort order of names in a language, ignoring case. One thread at a time.
class Collation {
public:
    /// For the first of these languages (tags such as "de_AT"); a default that suits most languages if there
    /// is none.
    explicit Collation(std::span<const std::string> languages);

    /// Whether `a` sorts before `b`. Names that differ only in case are equal.
    [[nodiscard]] bool comesBefore(std::string_view a, std::string_view b) const;

private:
    struct Close {
        void operator()(UCollator* collator) const;
    };
    std::unique_ptr<UCollator, Close> m_collator; ///< null if the library has no data; then by bytes
};

} // namespace orlen

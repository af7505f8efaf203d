#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

struct UCollator;

namespace orlen {

/// The order in which a language sorts names, whatever their case. One thread at a time.
class Collation {
public:
    /// Of the first language (a tag such as "de_AT"); the order that suits most languages when there is none.
    explicit Collation(std::span<const std::string> languages);

    /// Whether `a` comes before `b`. Names that differ in case alone come in no order.
    [[nodiscard]] bool comesBefore(std::string_view a, std::string_view b) const;

private:
    struct Close {
        void operator()(UCollator* collator) const;
    };
    std::unique_ptr<UCollator, Close> m_collator; ///< null where the library has no data: by bytes then
};

} // namespace orlen

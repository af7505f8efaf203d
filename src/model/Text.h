#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orlen {

/// A sentence or word of the program. The English one stands in the code; it is also its key in the
/// catalogues, what JSON holds, and what is shown when no catalogue has it. Only literals become texts, by
/// the functions below: that is where the tools that collect the texts find them. The screens are not
/// compiled; their texts are literals there.
class Text {
public:
    constexpr Text() = default;

    /// The English text, in the singular.
    [[nodiscard]] constexpr std::string_view base() const { return m_one; }
    /// The English text for this number of things.
    [[nodiscard]] constexpr std::string_view base(std::int64_t count) const
    {
        return m_many.empty() || count == 1 ? m_one : m_many;
    }
    /// Tells equal English texts of different meaning apart; empty if there is only one meaning.
    [[nodiscard]] constexpr std::string_view context() const { return m_context; }
    [[nodiscard]] constexpr bool empty() const { return m_one.empty(); }
    [[nodiscard]] constexpr bool hasPlural() const { return !m_many.empty(); }

    friend constexpr bool operator==(const Text&, const Text&) = default;

private:
    friend consteval Text message(const char* text);
    friend consteval Text messageIn(const char* context, const char* text);
    friend consteval Text messages(const char* one, const char* many);
    friend Text screenText(const std::string& context, const std::string& one, const std::string& many);

    static constexpr const char* kNothing = "";

    // All end in a zero byte.
    std::string_view m_context = kNothing;
    std::string_view m_one = kNothing;
    std::string_view m_many = kNothing;
};

/// A text, in which "{name}" stands for what `Message` puts there.
[[nodiscard]] consteval Text message(const char* text)
{
    Text made;
    made.m_one = text;
    return made;
}

/// A text whose meaning is not plain alone: `context` says, for translators, which one it is.
[[nodiscard]] consteval Text messageIn(const char* context, const char* text)
{
    Text made = message(text);
    made.m_context = context;
    return made;
}

/// A text that depends on a number: the place "{count}".
[[nodiscard]] consteval Text messages(const char* one, const char* many)
{
    Text made = message(one);
    made.m_many = many;
    return made;
}

/// A text that stands in a screen as it would in the functions above; `context` and `many` may be empty. The
/// strings must outlive it.
[[nodiscard]] inline Text screenText(const std::string& context, const std::string& one,
                                     const std::string& many)
{
    Text made;
    made.m_context = context;
    made.m_one = one;
    made.m_many = many;
    return made;
}

} // namespace orlen

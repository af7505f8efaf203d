#pragma once

#include <string_view>

/// Lines of settings files. Pure; any thread.
namespace orlen::LineText {

/// The text without spaces, tabs and carriage returns at both ends.
[[nodiscard]] inline std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kSpace = " \t\r";
    const std::size_t first = text.find_first_not_of(kSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

} // namespace orlen::LineText

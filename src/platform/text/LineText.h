#pragma once

#include <algorithm>
#include <string_view>

/// Splits text into lines. Pure; any thread.
namespace orlen::LineText {

/// The text without leading and trailing spaces, tabs and carriage returns.
[[nodiscard]] inline std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kSpace = " \t\r";
    const std::size_t first = text.find_first_not_of(kSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

/// Removes the first line from the text and returns it without its newline.
[[nodiscard]] inline std::string_view takeLine(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

} // namespace orlen::LineText

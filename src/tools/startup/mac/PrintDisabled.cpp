#include "tools/startup/mac/PrintDisabled.h"

#include "platform/text/LineText.h"

namespace orlen::PrintDisabled {

namespace {

constexpr std::string_view kArrow = "=>";

std::string_view without(std::string_view characters, std::string_view text)
{
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

bool meansDisabled(std::string_view state)
{
    // Older systems print whether the label is disabled, newer ones its state.
    return state.starts_with("disabled") || state.find("true") != std::string_view::npos;
}

} // namespace

Labels labels(std::string_view text)
{
    Labels disabled;
    while (!text.empty()) {
        const std::string_view line = LineText::takeLine(text);
        const std::size_t arrow = line.find(kArrow);
        if (arrow == std::string_view::npos)
            continue;
        const std::string_view state = line.substr(arrow + kArrow.size());
        if (state.find(kArrow) == std::string_view::npos && meansDisabled(without(" \t\r\v\f", state)))
            disabled.emplace(without(" \t\"", line.substr(0, arrow)));
    }
    return disabled;
}

} // namespace orlen::PrintDisabled

#include "cli/Colours.h"

#include <cstdlib>

namespace orlen {

namespace {

bool canShow(Terminal::Stream stream)
{
    const char* kind = std::getenv("TERM");
    return Terminal::isTerminal(stream) && std::getenv("NO_COLOR") == nullptr && kind != nullptr &&
           std::string_view(kind) != "dumb";
}

std::string_view code(Style style)
{
    switch (style) {
    case Style::plain:
        return "";
    case Style::bold:
        return "\x1b[1m";
    case Style::dim:
        return "\x1b[2m";
    case Style::green:
        return "\x1b[32m";
    case Style::orange:
        return "\x1b[33m";
    case Style::blue:
        return "\x1b[34m";
    }
    return "";
}

} // namespace

Colours::Colours(Terminal::Stream stream) : m_isOn(canShow(stream)) {}

std::string Colours::styled(Style style, std::string_view text) const
{
    if (!m_isOn || style == Style::plain || text.empty())
        return std::string(text);
    return std::string(code(style)).append(text).append("\x1b[0m");
}

} // namespace orlen

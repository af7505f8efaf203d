#include "platform/text/KeyFile.h"

#include "platform/text/LineText.h"

namespace orlen {

namespace {

std::string_view withoutReturn(std::string_view line)
{
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

} // namespace

std::optional<KeyFile::Line> KeyFile::next()
{
    if (m_rest.empty())
        return std::nullopt;
    const std::string_view before = m_rest;
    const std::string_view whole = LineText::takeLine(m_rest);
    const bool isTrimmed = m_spaces == Spaces::trimmed;
    const std::string_view text = isTrimmed ? LineText::trimmed(whole) : withoutReturn(whole);
    Line line;
    line.raw = before.substr(0, before.size() - m_rest.size());
    const std::size_t equals = text.find('=');
    if (text.starts_with('[') && text.ends_with(']')) {
        line.isHeading = true;
        m_group = text.substr(1, text.size() - 2);
    } else if (equals != std::string_view::npos && !text.starts_with('#') && !text.starts_with(';')) {
        line.key = text.substr(0, equals);
        line.value = text.substr(equals + 1);
        if (isTrimmed) {
            line.key = LineText::trimmed(line.key);
            line.value = LineText::trimmed(line.value);
        }
    }
    line.group = m_group;
    return line;
}

} // namespace orlen

#include "tools/startup/DesktopEntryEdit.h"

#include "platform/text/LineText.h"

#include <algorithm>
#include <vector>

namespace orlen::DesktopEntryEdit {

namespace {

constexpr std::string_view kGroup = "[Desktop Entry]";

std::string_view endingOf(std::string_view line)
{
    if (line.ends_with("\r\n"))
        return "\r\n";
    return line.ends_with('\n') ? "\n" : "";
}

/// Takes the first line with its ending off the text.
std::string_view takeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
    text.remove_prefix(line.size());
    return line;
}

class Edit {
public:
    explicit Edit(std::span<const Setting> settings) : m_settings(settings), m_isDone(settings.size()) {}

    void take(std::string_view line)
    {
        const std::string_view ending = endingOf(line);
        const std::string_view content = LineText::trimmed(line.substr(0, line.size() - ending.size()));
        if (content.starts_with('[') && content.ends_with(']')) {
            m_isInGroup = content == kGroup;
            m_text += line;
            if (m_isInGroup && !m_place) {
                m_place = m_text.size();
                m_ending = ending;
            }
        } else if (const std::string replaced = replacement(content); !replaced.empty()) {
            m_text.append(replaced).append(ending);
        } else {
            m_text += line;
        }
    }

    [[nodiscard]] std::optional<std::string> finish() &&
    {
        if (!m_place)
            return std::nullopt;
        std::string added;
        for (std::size_t i = 0; i < m_settings.size(); ++i) {
            if (!m_isDone[i])
                added.append(lineOf(m_settings[i])).append(m_ending.empty() ? "\n" : m_ending);
        }
        // The heading may be the last line of the file, and unfinished.
        if (m_ending.empty() && !added.empty())
            added.insert(0, 1, '\n');
        m_text.insert(*m_place, added);
        return std::move(m_text);
    }

private:
    static std::string lineOf(const Setting& setting)
    {
        return std::string(setting.key).append("=").append(setting.value);
    }

    /// What stands in place of a line that sets one of the keys; empty for all others.
    std::string replacement(std::string_view content)
    {
        const std::size_t equals = content.find('=');
        if (!m_isInGroup || equals == std::string_view::npos)
            return {};
        const std::string_view key = LineText::trimmed(content.substr(0, equals));
        const auto found = std::find_if(m_settings.begin(), m_settings.end(),
                                        [&](const Setting& setting) { return setting.key == key; });
        if (found == m_settings.end())
            return {};
        // Of a key that stands twice some desktops take the first line and some the last.
        m_isDone[static_cast<std::size_t>(found - m_settings.begin())] = true;
        return lineOf(*found);
    }

    std::span<const Setting> m_settings;
    std::vector<bool> m_isDone;
    std::string m_text;
    bool m_isInGroup = false;
    std::optional<std::size_t> m_place; ///< behind the group's first heading
    std::string_view m_ending;          ///< of that heading
};

} // namespace

std::optional<std::string> withSettings(std::string_view text, std::span<const Setting> settings)
{
    Edit edit(settings);
    while (!text.empty())
        edit.take(takeLine(text));
    return std::move(edit).finish();
}

} // namespace orlen::DesktopEntryEdit

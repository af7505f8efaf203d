#include "tools/startup/DesktopEntryEdit.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/text/KeyFile.h"

#include <algorithm>
#include <vector>

namespace orlen::DesktopEntryEdit {

namespace {

std::string_view endingOf(std::string_view line)
{
    if (line.ends_with("\r\n"))
        return "\r\n";
    return line.ends_with('\n') ? "\n" : "";
}

std::string lineOf(const Setting& setting)
{
    return std::string(setting.key).append("=").append(setting.value);
}

class Edit {
public:
    explicit Edit(std::span<const Setting> settings) : m_settings(settings), m_isDone(settings.size()) {}

    void take(const KeyFile::Line& line)
    {
        const bool isInGroup = line.group == DesktopEntry::kGroup;
        const auto setting = std::find_if(m_settings.begin(), m_settings.end(), [&](const Setting& each) {
            return isInGroup && each.key == line.key;
        });
        if (setting == m_settings.end()) {
            m_text += line.raw;
        } else {
            // If a key is there twice, some desktops use the first line and some the last.
            m_isDone[static_cast<std::size_t>(setting - m_settings.begin())] = true;
            m_text.append(lineOf(*setting)).append(endingOf(line.raw));
        }
        if (line.isHeading && isInGroup && !m_place) {
            m_place = m_text.size();
            m_ending = endingOf(line.raw);
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
        // The heading may be the file's last line, without a newline.
        if (m_ending.empty() && !added.empty())
            added.insert(0, 1, '\n');
        m_text.insert(*m_place, added);
        return std::move(m_text);
    }

private:
    std::span<const Setting> m_settings;
    std::vector<bool> m_isDone;
    std::string m_text;
    std::optional<std::size_t> m_place; ///< after the group's first heading
    std::string_view m_ending;          ///< of that heading
};

} // namespace

std::optional<std::string> withSettings(std::string_view text, std::span<const Setting> settings)
{
    Edit edit(settings);
    KeyFile file(text);
    while (const auto line = file.next())
        edit.take(*line);
    return std::move(edit).finish();
}

} // namespace orlen::DesktopEntryEdit

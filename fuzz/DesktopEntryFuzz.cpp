#include "Require.h"
#include "platform/desktop/DesktopEntry.h"
#include "platform/text/LineText.h"
#include "platform/text/PathText.h"
#include "tools/startup/DesktopEntryEdit.h"

#include <array>
#include <cstdint>

namespace {

using orlen::DesktopEntry;
namespace DesktopEntryEdit = orlen::DesktopEntryEdit;

void checkValues(const DesktopEntry& entry)
{
    const std::array<std::string, 2> languages{"de_AT", "_"};
    for (const char* key : {"Name", "Exec", "TryExec", "Icon", "OnlyShowIn", "Hidden", "X-AppImage-Name"}) {
        const std::string text = entry.text(key);
        require(orlen::PathText::isValidUtf8(text) && text.find('\0') == std::string::npos);
        require(text.empty() || entry.has(key));
        require(orlen::PathText::isValidUtf8(entry.localizedText(key, languages)));
        for (const std::string& element : entry.list(key))
            require(orlen::PathText::isValidUtf8(element));
        std::size_t length = 0;
        for (const std::string& word : entry.command(key))
            length += word.size();
        require(length <= text.size());
        require(!entry.flag(key) || text == (*entry.flag(key) ? "true" : "false"));
    }
}

/// All lines that do not name the key, joined; whether the last one is finished does not count.
std::string otherLines(std::string_view text)
{
    std::string kept;
    while (!text.empty()) {
        const std::string_view line = orlen::LineText::takeLine(text);
        if (line.find("Hidden") == std::string_view::npos)
            kept.append(line).append("\n");
    }
    return kept;
}

} // namespace

/// What is read from a launcher is text that can be shown and made a path of. An edited one says what was
/// set, keeps its other lines, and does not change when edited again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::array<DesktopEntryEdit::Setting, 1> hidden{{{"Hidden", "true"}}};
    const auto entry = DesktopEntry::parsed(text);
    const auto edited = DesktopEntryEdit::withSettings(text, hidden);
    require(edited.has_value() == entry.has_value());
    if (!entry)
        return 0;
    checkValues(*entry);
    const auto after = DesktopEntry::parsed(*edited);
    require(after && after->flag("Hidden") == true);
    require(otherLines(*edited) == otherLines(text));
    require(DesktopEntryEdit::withSettings(*edited, hidden) == edited);
    return 0;
}

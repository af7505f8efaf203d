#include "platform/desktop/DesktopEntry.h"
#include "tools/startup/DesktopEntryEdit.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using orlen::DesktopEntry;
namespace DesktopEntryEdit = orlen::DesktopEntryEdit;

/// All lines but those that speak of the key, joined; whether the last one is finished does not count.
std::string otherLines(std::string_view text)
{
    std::string kept;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
        if (line.find("Hidden") == std::string_view::npos)
            kept.append(line).append("\n");
    }
    return kept;
}

} // namespace

/// An edited entry says what was set, keeps its other lines, and does not change when edited again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::array<DesktopEntryEdit::Setting, 1> hidden{{{"Hidden", "true"}}};
    const auto edited = DesktopEntryEdit::withSettings(text, hidden);
    const auto before = DesktopEntry::parsed(text);
    if (edited.has_value() != before.has_value())
        std::abort();
    if (!edited)
        return 0;
    const auto after = DesktopEntry::parsed(*edited);
    const bool isSet = after && after->flag("Hidden") == true;
    const bool isKept = otherLines(*edited) == otherLines(text);
    if (!isSet || !isKept || DesktopEntryEdit::withSettings(*edited, hidden) != edited)
        std::abort();
    return 0;
}

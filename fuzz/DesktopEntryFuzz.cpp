#include "Require.h"
#include "platform/desktop/DesktopEntry.h"
#include "platform/text/PathText.h"

#include <array>
#include <cstdint>

/// Whatever a launcher holds, what is read from it is text that can be shown and made a path of.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using orlen::DesktopEntry;
    const auto entry = DesktopEntry::parsed({reinterpret_cast<const char*>(data), size});
    if (!entry)
        return 0;
    const std::array<std::string, 2> languages{"de_AT", "_"};
    for (const char* key : {"Name", "Exec", "TryExec", "Icon", "OnlyShowIn", "Hidden", "X-AppImage-Name"}) {
        const std::string text = entry->text(key);
        require(orlen::PathText::isValidUtf8(text) && text.find('\0') == std::string::npos);
        require(text.empty() || entry->has(key));
        require(orlen::PathText::isValidUtf8(entry->localizedText(key, languages)));
        for (const std::string& element : entry->list(key))
            require(orlen::PathText::isValidUtf8(element));
        std::size_t length = 0;
        for (const std::string& word : entry->command(key))
            length += word.size();
        require(length <= text.size());
        require(!entry->flag(key) || text == (*entry->flag(key) ? "true" : "false"));
    }
    return 0;
}

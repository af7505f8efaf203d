#include "Require.h"
#include "clean/SyncConfigs.h"
#include "platform/text/PathText.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using Folders = std::vector<std::string>;

/// Every character as the escapes of its UTF-16 units.
std::string escaped(std::string_view text)
{
    std::string units;
    const auto put = [&](std::uint32_t unit) {
        std::array<char, 12> escape{};
        std::snprintf(escape.data(), escape.size(), "\\x%x", unit);
        units += escape.data();
    };
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    for (std::size_t at = 0; at < text.size();) {
        UChar32 character = 0;
        U8_NEXT(bytes, at, text.size(), character);
        const auto point = static_cast<std::uint32_t>(character);
        if (point >= 0x10000)
            put(0xD800 + ((point - 0x10000) >> 10U));
        put(point >= 0x10000 ? 0xDC00 + (point & 0x3FFU) : point);
    }
    return units;
}

void requireNotLonger(const Folders& folders, std::size_t most)
{
    std::size_t total = 0;
    for (const std::string& folder : folders)
        total += folder.size();
    require(total <= most);
}

} // namespace

/// No folder is longer than what names it, and a folder's name written by the rules of the format comes back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    requireNotLonger(SyncConfigs::fromDropbox(text), size);
    requireNotLonger(SyncConfigs::fromNextcloud(text), size);
    requireNotLonger(SyncConfigs::fromOneDrive(text), size);
    requireNotLonger(SyncConfigs::fromMaestral(text), size);
    // The reader may take the text for UTF-16 and turn two bytes into three.
    requireNotLonger(SyncConfigs::fromSyncthing(text), 2 * size);
    for (const std::string& folder : SyncConfigs::fromDropbox(text))
        require(PathText::isValidUtf8(folder));

    const std::string name(text);
    if (PathText::isValidUtf8(text))
        require(SyncConfigs::fromNextcloud("0\\localPath=" + escaped(text)) == Folders{name});
    if (text.find('\n') == std::string_view::npos)
        require(SyncConfigs::fromOneDrive("sync_dir = \"" + name + "\"\r\n") == Folders{name});
    return 0;
}

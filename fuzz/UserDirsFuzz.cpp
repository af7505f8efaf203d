#include "Require.h"
#include "platform/files/UserDirs.h"
#include "platform/text/PathText.h"

#include <cstdint>

namespace {

constexpr std::string_view kHome = "/home/user";

std::string quoted(std::string_view text)
{
    std::string value = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\' || c == '$' || c == '`')
            value += '\\';
        value += c;
    }
    return value + '"';
}

} // namespace

/// Every folder is a standardised path below the home folder, and one written by the rules comes back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const auto& [key, folder] : UserDirs::parse(text, kHome)) {
        require(!key.empty() && folder != kHome && PathText::isAtOrBelow(folder, kHome));
        require(PathText::standardized(folder) == folder && folder.find('\0') == std::string::npos);
        require(folder.size() <= kHome.size() + size);
    }
    const std::string path = PathText::standardized(std::string(kHome) + "/" + std::string(text));
    const bool isFolder = path != kHome && PathText::isAtOrBelow(path, kHome) &&
                          text.find_first_of(std::string_view("\n\0", 2)) == std::string_view::npos;
    const auto folders = UserDirs::parse("XDG_MUSIC_DIR=" + quoted(path) + '\n', kHome);
    if (isFolder)
        require(folders == std::map<std::string, std::string>{{"MUSIC", path}});
    return 0;
}

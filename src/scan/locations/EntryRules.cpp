#include "scan/locations/EntryRules.h"

#include "clean/trash/Trash.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>

namespace orlen::EntryRules {

namespace {

bool isDigitAt(std::string_view text, std::size_t at)
{
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// "x.log.2" and "x.log-20250301", whatever follows the digits.
bool isRotated(std::string_view name)
{
    constexpr std::string_view kLog = ".log";
    for (std::size_t at = name.find(kLog); at != std::string_view::npos; at = name.find(kLog, at + 1)) {
        const std::size_t separator = at + kLog.size();
        if (separator < name.size() && (name[separator] == '.' || name[separator] == '-') &&
            isDigitAt(name, separator + 1))
            return true;
    }
    return false;
}

} // namespace

bool isLogName(std::string_view name)
{
    constexpr std::array<std::string_view, 6> kEnds{".log",    ".log.old", ".log.bak",
                                                    ".log.gz", ".log.xz",  ".log.zst"};
    return isRotated(name) ||
           std::any_of(kEnds.begin(), kEnds.end(), [&](std::string_view end) { return name.ends_with(end); });
}

bool isNamedLikeLog(const std::string& path)
{
    return isLogName(PathText::lastComponent(path));
}

bool isLogFileOrLogsFolder(const std::string& path)
{
    const std::string_view name = PathText::lastComponent(path);
    const bool mayBeFolder = name == "log" || name == "logs";
    if (!mayBeFolder && !isLogName(name))
        return false;
    const auto status = statusOf(path);
    return status.ok() && status.value().type == (mayBeFolder ? FileType::folder : FileType::regular);
}

std::string trashNote(const std::string& trashed)
{
    const std::string original = Trash::originalPath(trashed);
    const std::string_view folder = PathText::parent(original);
    if (folder.empty() || !PathText::isValidUtf8(folder))
        return {};
    return "Deleted from " + std::string(folder);
}

} // namespace orlen::EntryRules

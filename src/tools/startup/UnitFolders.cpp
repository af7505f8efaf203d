#include "tools/startup/UnitFolders.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>

namespace orlen::UnitFolders {

namespace {

constexpr std::string_view kBelow = "/systemd/user";
constexpr std::string_view kNowhere = "/dev/null";
constexpr std::size_t kLongestName = 255;

std::vector<std::string> below(const std::vector<std::string>& folders)
{
    std::vector<std::string> paths;
    paths.reserve(folders.size());
    for (const std::string& folder : folders)
        paths.push_back(folder + std::string(kBelow));
    return paths;
}

bool isLinkToNowhere(const std::string& path)
{
    const auto status = statusOf(path);
    return status.ok() && status.value().type == FileType::link && resolved(path) == kNowhere;
}

} // namespace

bool isUnitName(std::string_view name)
{
    constexpr std::string_view kLetters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789:-_.\\@";
    constexpr std::string_view kSuffixes[] = {".service", ".timer", ".socket", ".path"};
    const NameParts parts = partsOf(name);
    const bool isTemplate = parts.stem.ends_with('@');
    return std::ranges::find(kSuffixes, parts.suffix) != std::end(kSuffixes) && !parts.stem.empty() &&
           !isTemplate && name.size() <= kLongestName && !name.starts_with('-') &&
           name.find_first_not_of(kLetters) == std::string_view::npos;
}

NameParts partsOf(std::string_view name)
{
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    NameParts parts{name.substr(0, dot), {}, name.substr(dot)};
    const std::size_t at = parts.stem.find('@');
    if (at != std::string_view::npos && at > 0 && at + 1 < parts.stem.size()) {
        parts.instance = parts.stem.substr(at + 1);
        parts.stem = parts.stem.substr(0, at);
    }
    return parts;
}

std::vector<std::string> ofUser(const Places& places)
{
    return below(places.configs);
}

std::vector<std::string> ofSettings(const Places& places)
{
    std::vector<std::string> folders = ofUser(places);
    folders.push_back(places.systemRoot + "/etc/systemd/user");
    return folders;
}

std::vector<std::string> all(const Places& places)
{
    std::vector<std::string> folders = ofSettings(places);
    for (std::string& folder : below(places.data))
        folders.push_back(std::move(folder));
    for (const char* folder : {"/usr/local/lib/systemd/user", "/usr/lib/systemd/user", "/lib/systemd/user"})
        folders.push_back(places.systemRoot + folder);
    return folders;
}

std::string find(const Places& places, const std::string& name)
{
    for (const std::string& folder : all(places)) {
        std::string path = PathText::join(folder, name);
        if (exists(path) && !isMask(path))
            return path;
    }
    const NameParts parts = partsOf(name);
    return parts.instance.empty() ? std::string()
                                  : find(places, std::string(parts.stem) + '@' + std::string(parts.suffix));
}

bool isMask(const std::string& path)
{
    const auto status = statusOf(path);
    const bool isEmptyFile =
        status.ok() && status.value().type == FileType::regular && status.value().length == 0;
    return isEmptyFile || isLinkToNowhere(path);
}

bool isMaskedByUser(const Places& places, const std::string& name)
{
    const std::vector<std::string> folders = ofUser(places);
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        return isLinkToNowhere(PathText::join(folder, name));
    });
}

bool isTakenByUser(const Places& places, const std::string& name)
{
    const std::vector<std::string> folders = ofUser(places);
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        const std::string path = PathText::join(folder, name);
        return exists(path) && !isLinkToNowhere(path);
    });
}

bool isLinkedByUser(const Places& places, const std::string& name)
{
    const std::vector<std::string> folders = ofUser(places);
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        const std::string path = PathText::join(folder, name);
        const auto status = statusOf(path);
        return status.ok() && status.value().type == FileType::link && !isLinkToNowhere(path);
    });
}

} // namespace orlen::UnitFolders

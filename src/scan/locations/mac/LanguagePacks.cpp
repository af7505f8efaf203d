#include "scan/locations/mac/LanguagePacks.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/mac/BundleInfo.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "scan/locations/KeptLanguages.h"

#include <string>
#include <string_view>

namespace orlen::LanguagePacks {

namespace {

bool isExaminable(const std::string& bundle)
{
    return isWritable(bundle) && !BundleInfo::identifier(bundle).starts_with("com.apple.");
}

std::vector<std::string> translationsIn(const std::string& bundle)
{
    constexpr std::string_view kSuffix = ".lproj";
    std::vector<std::string> paths;
    const std::string resources = bundle + "/Contents/Resources";
    for (const std::string& name : listNames(resources + "/.")) {
        if (!name.ends_with(kSuffix) ||
            KeptLanguages::contains(std::string_view(name).substr(0, name.size() - kSuffix.size())))
            continue;
        std::string path = PathText::join(resources, name);
        if (isRealFolder(path) && PathText::isValidUtf8(path) && !Safety::isProtected(path))
            paths.push_back(std::move(path));
    }
    return paths;
}

} // namespace

std::vector<FileEntry> entries(UnreadableFolders* unreadable, const std::stop_token& stop)
{
    const Places& places = Places::current();
    if (!places.isHomeUsable)
        return {};
    std::vector<std::string> paths;
    for (const std::string& name : listNames(places.applications + "/.")) {
        if (stop.stop_requested())
            break;
        const std::string bundle = PathText::join(places.applications, name);
        if (!name.ends_with(".app") || !isExaminable(bundle))
            continue;
        for (std::string& path : translationsIn(bundle))
            paths.push_back(std::move(path));
    }
    std::vector<FileEntry> found = FS::entries(paths, {}, stop, unreadable);
    std::erase_if(found, [](const FileEntry& entry) { return entry.size < 1; });
    return found;
}

} // namespace orlen::LanguagePacks

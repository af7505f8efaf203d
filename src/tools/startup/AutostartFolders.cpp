#include "tools/startup/AutostartFolders.h"

#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

namespace orlen::AutostartFolders {

namespace {

std::vector<std::string> below(const std::vector<std::string>& folders)
{
    std::vector<std::string> paths;
    paths.reserve(folders.size());
    for (const std::string& folder : folders)
        paths.push_back(folder + "/autostart");
    return paths;
}

} // namespace

std::vector<std::string> ofUser(const Places& places)
{
    return below(places.configs);
}

std::vector<std::string> ofEverybody(const Places& places)
{
    return below(places.sharedConfigs);
}

std::string find(const std::vector<std::string>& folders, const std::string& name)
{
    for (const std::string& folder : folders) {
        std::string path = PathText::join(folder, name);
        if (exists(path))
            return path;
    }
    return {};
}

} // namespace orlen::AutostartFolders

#include "scan/locations/AppFolders.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/ScanTexts.h"

#include <utility>

namespace orlen {

namespace {

std::vector<AppFolder> ownFolders(const std::vector<std::string>& paths)
{
    std::vector<AppFolder> folders;
    folders.reserve(paths.size());
    for (const std::string& path : paths)
        folders.push_back({path, {}});
    return folders;
}

/// The folder of the revision in use: "current" links to it. Older revisions are kept for going back to them.
std::string currentRevision(const std::string& snap)
{
    const auto end = linkEnd(snap + "/current");
    return end.ok() && PathText::parent(end.value()) == snap && isRealFolder(end.value()) ? end.value()
                                                                                          : std::string();
}

} // namespace

AppFolders::AppFolders(const Places& places)
    : m_caches(ownFolders(places.caches)), m_configs(ownFolders(places.configs)),
      m_data(ownFolders(places.data))
{
    addFlatpaks(places.home + "/.var/app");
    addSnaps(places.home + "/snap");
    addSnaps(places.home + "/.snap/data");
}

void AppFolders::addFlatpaks(const std::string& apps)
{
    for (const std::string& id : listNames(apps)) {
        const std::string app = PathText::join(apps, id);
        const Message owner{ScanTexts::kFlatpakApp, {{"name", id}}};
        m_caches.push_back({app + "/cache", owner});
        m_configs.push_back({app + "/config", owner});
        m_data.push_back({app + "/data", owner});
    }
}

void AppFolders::addSnaps(const std::string& snaps)
{
    for (const std::string& name : listNames(snaps)) {
        const std::string snap = PathText::join(snaps, name);
        const Message owner{ScanTexts::kSnapApp, {{"name", name}}};
        for (const std::string& folder : {snap + "/common", currentRevision(snap)}) {
            if (folder.empty())
                continue;
            m_caches.push_back({folder + "/.cache", owner});
            m_configs.push_back({folder + "/.config", owner});
            m_data.push_back({folder + "/.local/share", owner});
        }
    }
}

std::vector<AppFolder> AppFolders::expand(const Places& places, std::string_view pattern) const
{
    const std::pair<std::string_view, const std::vector<AppFolder>*> words[] = {
        {"{CACHES}", &m_caches}, {"{CONFIGS}", &m_configs}, {"{DATAS}", &m_data}};
    for (const auto& [word, folders] : words) {
        if (!pattern.starts_with(word))
            continue;
        std::vector<AppFolder> expanded = *folders;
        for (AppFolder& folder : expanded)
            folder.path.append(pattern.substr(word.size()));
        return expanded;
    }
    return ownFolders(places.expand(pattern));
}

} // namespace orlen

#include "clean/SyncRoots.h"

#include "clean/SyncConfigs.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <set>

namespace orlen::SyncRoots {

namespace {

constexpr std::size_t kConfigLimit = 4UL * 1024 * 1024;
/// Longer paths cannot be opened anyway.
constexpr std::size_t kPathLimit = 4096;
/// Most listings while searching for markers: plenty for a normal home, a bound for an unusual one.
constexpr std::size_t kListingLimit = 20'000;

constexpr std::string_view kDefaultFolders[] = {"Dropbox", "Nextcloud", "ownCloud",    "OneDrive",
                                                "MEGA",    "Insync",    "pCloudDrive", "GoogleDrive",
                                                "Seafile", "kDrive",    "Google Drive"};

struct Config {
    std::string_view pattern; ///< as `Places::expand` reads it
    std::vector<std::string> (*read)(std::string_view text);
};

constexpr Config kConfigs[] = {
    {"{H}/.dropbox/info.json", SyncConfigs::fromDropbox},
    {"{CONFIG}/Nextcloud/nextcloud.cfg", SyncConfigs::fromNextcloud},
    {"{CONFIG}/ownCloud/owncloud.cfg", SyncConfigs::fromNextcloud},
    {"{STATE}/syncthing/config.xml", SyncConfigs::fromSyncthing},
    {"{CONFIG}/syncthing/config.xml", SyncConfigs::fromSyncthing},
    {"{CONFIG}/onedrive/config", SyncConfigs::fromOneDrive},
};

/// The same files of sandboxed programs, below ".var/app/<id>".
constexpr Config kSandboxedConfigs[] = {
    {"/config/Nextcloud/nextcloud.cfg", SyncConfigs::fromNextcloud},
    {"/config/ownCloud/owncloud.cfg", SyncConfigs::fromNextcloud},
};

class Search {
public:
    Search(const Places& places, const HomeMounts& mounts) : m_places(places), m_mounts(mounts) {}

    std::vector<std::string> run()
    {
        readConfigs();
        takeDefaults();
        lookForMarkers();
        return {m_found.begin(), m_found.end()};
    }

private:
    void take(std::string_view folder)
    {
        std::string path(folder);
        if (path == "~" || path.starts_with("~/"))
            path.replace(0, 1, m_places.home);
        if (!path.starts_with('/') || path.size() > kPathLimit || path.find('\0') != std::string::npos)
            return;
        path = m_places.normalized(path);
        if (!PathText::isAtOrBelow(m_places.home, path))
            m_found.insert(std::move(path));
    }

    void readConfig(const std::string& file, const Config& config)
    {
        if (m_mounts.isForeign(file))
            return;
        if (const auto text = readSmallFile(file, kConfigLimit)) {
            for (const std::string& folder : config.read(*text))
                take(folder);
        }
    }

    void readConfigs()
    {
        for (const Config& config : kConfigs) {
            for (const std::string& file : m_places.expand(config.pattern))
                readConfig(file, config);
        }
        const std::string apps = m_places.home + "/.var/app";
        if (m_mounts.isForeign(apps))
            return;
        for (const std::string& id : listNames(apps)) {
            for (const Config& config : kSandboxedConfigs)
                readConfig(PathText::join(apps, id).append(config.pattern), config);
        }
    }

    void takeDefaults()
    {
        for (const std::string_view name : kDefaultFolders) {
            const std::string folder = PathText::join(m_places.home, name);
            if (m_mounts.isForeign(folder))
                continue;
            const auto status = statusOf(folder);
            if (status.ok() &&
                (status.value().type == FileType::folder || status.value().type == FileType::link))
                take(folder);
        }
    }

    /// Takes the folder if it contains a marker, and returns its sub-folders.
    std::vector<std::string> look(const std::string& folder)
    {
        std::vector<std::string> below;
        if (m_listings >= kListingLimit || m_mounts.isForeign(folder))
            return below;
        ++m_listings;
        const auto fd = openFolder(folder);
        if (!fd.ok())
            return below;
        bool hasMarker = false;
        FolderReader reader(fd.value().get());
        while (const auto chunk = reader.next()) {
            chunk->forEach([&](const FolderEntry& entry) {
                hasMarker |= isMarker(entry.name);
                if (entry.type == EntryType::folder || entry.type == EntryType::unknown)
                    below.push_back(PathText::join(folder, entry.name));
            });
        }
        if (hasMarker)
            take(folder);
        return below;
    }

    void lookForMarkers()
    {
        std::vector<std::string> top = look(m_places.home);
        // If the limit is reached, it is among the thousands of folders of caches and settings.
        std::partition(top.begin(), top.end(), [](const std::string& folder) {
            return !PathText::lastComponent(folder).starts_with('.');
        });
        for (const std::string& folder : top) {
            for (const std::string& inner : look(folder))
                (void)look(inner);
        }
    }

    const Places& m_places;
    const HomeMounts& m_mounts;
    std::set<std::string> m_found;
    std::size_t m_listings = 0;
};

} // namespace

std::vector<std::string> find(const Places& places, const HomeMounts& mounts)
{
    if (!places.isHomeUsable)
        return {};
    return Search(places, mounts).run();
}

bool isMarker(std::string_view name)
{
    if (name.ends_with(".db"))
        return name.starts_with(".sync_") || name.starts_with("._sync_");
    return name == ".stfolder" || name == ".nextcloudsync.log" || name == ".owncloudsync.log";
}

} // namespace orlen::SyncRoots

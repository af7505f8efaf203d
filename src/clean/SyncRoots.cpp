#include "clean/SyncRoots.h"

#include "clean/SafetyRules.h"
#include "clean/SyncConfigs.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/NamePattern.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace orlen::SyncRoots {

namespace {

constexpr std::size_t kConfigLimit = 4UL * 1024 * 1024;
/// Longer paths cannot be opened anyway.
constexpr std::size_t kPathLimit = 4096;
/// Most listings while searching for markers: plenty for a normal home, a bound for an unusual one.
constexpr std::size_t kListingLimit = 20'000;

constexpr std::string_view kDefaultFolders[] = {"Dropbox",       "Dropbox (Maestral)",
                                                "Nextcloud",     "ownCloud",
                                                "OneDrive",      "MEGA",
                                                "Insync",        "pCloudDrive",
                                                "GoogleDrive",   "Google Drive",
                                                "Seafile",       "kDrive",
                                                "Filen",         "Koofr",
                                                "koofr",         "Proton Drive",
                                                "ProtonDrive",   "Jottacloud",
                                                "Tresorit",      "Internxt",
                                                "Internxt Drive"};

/// Files and folders that a sync program puts into the folders it mirrors.
constexpr std::string_view kMarkers[] = {".stfolder",   ".nextcloudsync.log", ".owncloudsync.log", ".debris",
                                         ".megaignore", ".sync.ffs_db",       "sync.ffs_db"};

struct Config {
    std::string_view pattern; ///< as in `SafetyRules::PathRule`; a star may stand anywhere in a name
    std::vector<std::string> (*read)(std::string_view text);
};

constexpr Config kConfigs[] = {
    {"{H}/.dropbox/info.json", SyncConfigs::fromDropbox},
    {"{CONFIG}/maestral/*.ini", SyncConfigs::fromMaestral},
    {"({CONFIG}|{H}/.var/app/*/config)/(Nextcloud/nextcloud|ownCloud/owncloud).cfg",
     SyncConfigs::fromNextcloud},
    {"({STATE}|{CONFIG}|{H}/.var/app/*/config|{H}/.var/app/*/data|{H}/.var/app/*/.local/state)/syncthing/"
     "config.xml",
     SyncConfigs::fromSyncthing},
    {"{CONFIG}/(onedrive|onedrive-*|onedrive/accounts/*)/config", SyncConfigs::fromOneDrive},
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
            for (const std::string& pattern : SafetyRules::spelledOut(config.pattern)) {
                const std::size_t end = pattern.find('}') + 1;
                for (const std::string& folder : m_places.expand(pattern.substr(0, end)))
                    readConfigs(folder, std::string_view(pattern).substr(end), config);
            }
        }
    }

    /// `rest` is a pattern below the folder, which is taken literally.
    void readConfigs(const std::string& folder, std::string_view rest, const Config& config)
    {
        const std::size_t star = rest.find('*');
        if (star == std::string_view::npos)
            return readConfig(folder + std::string(rest), config);
        const std::size_t start = rest.rfind('/', star);
        const std::size_t end = std::min(rest.find('/', star), rest.size());
        const std::string above = folder + std::string(rest.substr(0, start));
        if (m_mounts.isForeign(above))
            return;
        for (const std::string& name : listNames(above)) {
            if (NamePattern::matches(rest.substr(start + 1, end - start - 1), name))
                readConfigs(PathText::join(above, name), rest.substr(end), config);
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
                hasMarker |= isMarker(fd.value().get(), entry);
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

bool isMarker(int folder, const FolderEntry& entry)
{
    const std::string_view name = entry.name;
    if (name.ends_with(".db"))
        return name.starts_with(".sync_") || name.starts_with("._sync_");
    if (name == ".sync")
        return entry.type != EntryType::link && statusAt(folder, ".sync/ID").ok();
    return std::ranges::find(kMarkers, name) != std::end(kMarkers);
}

} // namespace orlen::SyncRoots

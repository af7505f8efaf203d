#include "tools/startup/PackageNames.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "platform/text/LineText.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace orlen::PackageNames {

namespace {

constexpr std::size_t kLongestList = 32UL * 1024 * 1024;

/// Without the "/usr" that some lists leave out and others have, for folders that are the same in both.
std::string_view merged(std::string_view path)
{
    constexpr std::string_view kMerged = "/usr";
    if (!path.starts_with(kMerged))
        return path;
    const std::string_view rest = path.substr(kMerged.size());
    const bool isSame = rest.starts_with("/bin/") || rest.starts_with("/sbin/") || rest.starts_with("/lib/");
    return isSame ? rest : path;
}

/// Finds wanted files in the lists of packages.
class Search {
public:
    Search(const Places& places, const std::set<std::string>& paths)
    {
        for (const std::string& path : paths) {
            if (path.starts_with(places.systemRoot + "/"))
                m_wanted.emplace(merged(std::string_view(path).substr(places.systemRoot.size())), path);
        }
    }

    [[nodiscard]] bool isEmpty() const { return m_wanted.empty(); }

    void readList(const std::string& path, const std::string& package)
    {
        const auto text = readSmallFile(path, kLongestList);
        std::string line;
        for (std::string_view rest = text ? *text : std::string_view(); !rest.empty();) {
            std::string_view name = LineText::takeLine(rest);
            if (name.empty())
                continue;
            // pacman leaves out the slash before a path.
            if (name.front() != '/') {
                line.assign("/").append(name);
                name = line;
            }
            const auto range = m_wanted.equal_range(merged(name));
            for (auto found = range.first; found != range.second; ++found)
                m_packages.emplace(found->second, package);
        }
    }

    [[nodiscard]] std::map<std::string, std::string> packages() && { return std::move(m_packages); }

private:
    std::multimap<std::string, std::string, std::less<>> m_wanted; ///< path by its form in the lists
    std::map<std::string, std::string> m_packages;
};

/// "name" of "name-version-release".
std::string pacmanName(std::string folder)
{
    for (int part = 0; part < 2; ++part)
        folder.resize(std::min(folder.rfind('-'), folder.size()));
    return folder;
}

} // namespace

std::map<std::string, std::string> of(const Places& places, const std::set<std::string>& paths)
{
    Search search(places, paths);
    if (search.isEmpty())
        return {};
    constexpr std::string_view kList = ".list";
    const std::string dpkg = places.systemRoot + "/var/lib/dpkg/info";
    for (const std::string& name : listNames(dpkg)) {
        // "libc6:amd64.list"
        if (name.ends_with(kList))
            search.readList(PathText::join(dpkg, name),
                            name.substr(0, std::min(name.find(':'), name.size() - kList.size())));
    }
    const std::string pacman = places.systemRoot + "/var/lib/pacman/local";
    for (const std::string& name : listNames(pacman))
        search.readList(PathText::join(PathText::join(pacman, name), "files"), pacmanName(name));
    return std::move(search).packages();
}

} // namespace orlen::PackageNames

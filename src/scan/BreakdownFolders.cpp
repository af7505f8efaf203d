#include "scan/BreakdownFolders.h"

#include "platform/files/Folder.h"
#include "platform/files/MountTable.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <string_view>
#include <unordered_set>

namespace orlen::BreakdownFolders {

namespace {

struct Row {
    OrlenCategory category;
    std::string_view pattern; ///< as Places::expand reads it; "*" stands for every child folder
};

using enum OrlenCategory;

constexpr Row kRows[] = {
    {apps, "{APPLICATIONS}"},
    {apps, "{H}/Applications"},
    {apps, "{H}/AppImages"},
    {apps, "{H}/.local/opt"},
    {apps, "{H}/opt"},
    {apps, "{H}/.local/bin"},
    {apps, "{DATA}/flatpak"},
    {apps, "{ROOT}/opt"},
    {apps, "{ROOT}/var/lib/flatpak"},
    {apps, "{ROOT}/var/lib/snapd/snaps"},
    {apps, "{STEAM}"},
    {apps, "{H}/Games"},
    {apps, "{DATA}/lutris"},
    {apps, "{DATA}/bottles"},
    {apps, "{H}/.wine"},
    {apps, "{DATA}/wineprefixes"},
    {apps, "{H}/.var/app"},
    {apps, "{H}/snap"},
    {photos, "{H}/Pictures"},
    {photos, "{PICTURES}"},
    {photos, "{DATA}/shotwell"},
    {photos, "{DATA}/digikam"},
    {media, "{H}/Movies"},
    {media, "{H}/Music"},
    {media, "{VIDEOS}"},
    {media, "{MUSIC}"},
    {media, "{H}/Videos"},
    {documents, "{H}/Documents"},
    {documents, "{H}/Desktop"},
    {documents, "{H}/Downloads"},
    {documents, "{DOCUMENTS}"},
    {documents, "{DESKTOP}"},
    {documents, "{DOWNLOAD}"},
    {documents, "{TEMPLATES}"},
    {documents, "{PUBLICSHARE}"},
    {developer, "{H}/Library/Developer"},
    {developer, "{H}/.gradle"},
    {developer, "{H}/.npm"},
    {developer, "{H}/.cocoapods"},
    {developer, "{H}/.cargo"},
    {developer, "{H}/.rustup"},
    {developer, "{H}/go"},
    {developer, "{H}/.m2"},
    {developer, "{H}/.android"},
    {developer, "{H}/Android"},
    {developer, "{H}/.konan"},
    {developer, "{H}/.nuget"},
    {developer, "{H}/.dotnet"},
    {developer, "{H}/.pub-cache"},
    {developer, "{H}/.nvm"},
    {developer, "{H}/.bun"},
    {developer, "{H}/.yarn"},
    {developer, "{H}/.pnpm-store"},
    {developer, "{DATA}/pnpm"},
    {developer, "{H}/.pyenv"},
    {developer, "{H}/.local/pipx"},
    {developer, "{DATA}/pipx"},
    {developer, "{H}/.virtualenvs"},
    {developer, "{DATA}/virtualenv"},
    {developer, "{H}/.local/lib"},
    {developer, "{H}/.local/npm-global"},
    {developer, "{H}/.rbenv"},
    {developer, "{H}/.sdkman"},
    {developer, "{H}/.conda"},
    {developer, "{H}/miniconda3"},
    {developer, "{H}/anaconda3"},
    {developer, "{H}/miniforge3"},
    {developer, "{H}/mambaforge"},
    {developer, "{H}/micromamba"},
    {developer, "{H}/.julia"},
    {developer, "{H}/.stack"},
    {developer, "{H}/.ghcup"},
    {developer, "{H}/.opam"},
    {developer, "{H}/.platformio"},
    {developer, "{H}/.arduino15"},
    {developer, "{H}/.vscode"},
    {developer, "{H}/.vscode-server"},
    {developer, "{DATA}/JetBrains"},
    {developer, "{DATA}/containers"},
    {developer, "{DATA}/docker"},
    {developer, "{ROOT}/home/linuxbrew/.linuxbrew"},
    {caches, "{H}/Library/Caches"},
    {caches, "{H}/Library/Logs"},
    {caches, "{CACHE}"},
    {caches, "{H}/.thumbnails"},
    {caches, "{H}/.nv"},
    {caches, "{STEAM}/steamapps/shadercache"},
    {caches, "{H}/.var/app/*/cache"},
    {caches, "{H}/snap/*/common/.cache"},
};

/// The path, or if it has a "*" component, the path of each child folder there.
std::vector<std::string> withChildren(const std::string& path)
{
    constexpr std::string_view kAny = "/*/";
    const std::size_t star = path.find(kAny);
    if (star == std::string::npos)
        return {path};
    std::vector<std::string> paths;
    const std::string folder = path.substr(0, star);
    for (const std::string& name : listNames(folder))
        paths.push_back(PathText::join(folder, name) + path.substr(star + kAny.size() - 1));
    return paths;
}

} // namespace

std::vector<Folder> find(const Places& places, const MountTable& mounts)
{
    std::vector<Folder> folders;
    if (!places.isHomeUsable)
        return folders;
    std::unordered_set<std::string> seen;
    for (const Row& row : kRows) {
        for (const std::string& pattern : places.expand(row.pattern)) {
            for (const std::string& path : withChildren(pattern)) {
                std::string real = resolved(path);
                if (real.empty() || !mounts.isSameFileSystem(real, places.resolvedHome))
                    continue;
                if (seen.insert(real).second)
                    folders.push_back({row.category, std::move(real)});
            }
        }
    }
    return folders;
}

} // namespace orlen::BreakdownFolders

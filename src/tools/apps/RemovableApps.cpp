#include "tools/apps/RemovableApps.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppImage.h"
#include "tools/apps/Launchers.h"
#include "tools/apps/mac/Bundles.h"

#include <algorithm>

namespace orlen::RemovableApps {

namespace {

using Paths = std::vector<std::string>;

Paths sortedNames(const std::string& folder)
{
    Paths names = listNames(folder);
    std::erase_if(names, [](const std::string& name) { return !PathText::isValidUtf8(name); });
    std::sort(names.begin(), names.end());
    return names;
}

void addOnce(Paths& paths, const std::string& path)
{
    if (!path.empty() && std::find(paths.begin(), paths.end(), path) == paths.end())
        paths.push_back(path);
}

Paths imageFolders()
{
    const Places& places = Places::current();
    Paths folders;
    for (const char* name : {"/Applications", "/AppImages", "/.local/bin", "/bin", "/opt", "/.local/opt"})
        addOnce(folders, places.home + name);
    const std::string deep = places.home + "/.local/opt";
    for (const std::string& name : sortedNames(deep))
        addOnce(folders, PathText::join(deep, name));
    addOnce(folders, places.home + "/Desktop");
    addOnce(folders, places.desktop);
    addOnce(folders, places.home + "/Downloads");
    addOnce(folders, places.downloads);
    // What a server or sync program keeps there is not the user's to remove here, and may be slow to read.
    std::erase_if(folders, [](const std::string& folder) { return Safety::protectsContents(folder); });
    return folders;
}

bool isExecutableFile(const std::string& path)
{
    constexpr std::uint32_t kAnyExecute = 0111;
    const auto status = statusOf(resolved(path));
    return status.ok() && status.value().type == FileType::regular &&
           (status.value().mode & kAnyExecute) != 0;
}

bool holdsProgramNamed(const std::string& folder, const std::string& lowerName)
{
    for (const std::string& name : sortedNames(folder)) {
        if (PathText::asciiLower(name) == lowerName && isExecutableFile(PathText::join(folder, name)))
            return true;
    }
    return false;
}

bool holdsProgram(const std::string& folder)
{
    const std::string name = PathText::asciiLower(PathText::lastComponent(folder));
    return exists(folder + "/AppRun") || holdsProgramNamed(folder, name) ||
           holdsProgramNamed(folder + "/bin", name);
}

/// A folder with several programs is named after none of them.
bool agreeOnName(const std::vector<const Launcher*>& launchers)
{
    return std::all_of(launchers.begin(), launchers.end(),
                       [&](const Launcher* launcher) { return launcher->name == launchers.front()->name; });
}

bool startsAnyOf(const Launcher& launcher, const std::vector<AppInfo>& apps)
{
    return std::any_of(apps.begin(), apps.end(),
                       [&](const AppInfo& app) { return launcher.starts(app.path); });
}

} // namespace

std::vector<AppInfo> appImages(const std::vector<Launcher>& launchers, const std::stop_token& stop)
{
    std::vector<AppInfo> apps;
    for (const std::string& folder : imageFolders()) {
        const auto open = openFolder(folder);
        if (!open.ok())
            continue;
        for (const std::string& file : sortedNames(folder)) {
            if (stop.stop_requested())
                return apps;
            if (!AppImage::isOneAt(open.value().get(), file))
                continue;
            AppInfo app;
            app.path = PathText::join(folder, file);
            app.source = AppSource::appImage;
            Launchers::describe(app, Launchers::starting(launchers, app.path));
            if (app.name.empty())
                app.name = AppImage::nameFromFile(file);
            apps.push_back(std::move(app));
        }
    }
    return apps;
}

std::vector<AppInfo> folders(const std::vector<Launcher>& launchers, const std::vector<AppInfo>& images)
{
    const std::string& home = Places::current().home;
    std::vector<AppInfo> apps;
    for (const std::string& parent : {home + "/Applications", home + "/opt", home + "/.local/opt"}) {
        for (const std::string& name : sortedNames(parent)) {
            AppInfo app;
            app.path = PathText::join(parent, name);
            if (name.ends_with(Bundles::kSuffix) || !isRealFolder(app.path))
                continue;
            std::vector<const Launcher*> own = Launchers::starting(launchers, app.path);
            std::erase_if(own, [&](const Launcher* launcher) { return startsAnyOf(*launcher, images); });
            if (own.empty() && !holdsProgram(app.path))
                continue;
            app.source = AppSource::folder;
            Launchers::describe(app, own);
            if (app.name.empty() || !agreeOnName(own))
                app.name = name;
            apps.push_back(std::move(app));
        }
    }
    return apps;
}

} // namespace orlen::RemovableApps

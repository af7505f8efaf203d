#include "tools/apps/Launchers.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen::Launchers {

namespace {

using Paths = std::vector<std::string>;

/// Sub-folders of the menus, used by old desktops and emulators.
constexpr int kDeepest = 3;

bool isLauncherName(std::string_view name)
{
    return name.ends_with(".desktop") && PathText::isValidUtf8(name);
}

void addOnce(Paths& paths, const std::string& path)
{
    if (!path.empty() && std::find(paths.begin(), paths.end(), path) == paths.end())
        paths.push_back(path);
}

Paths userFolders()
{
    const Places& places = Places::current();
    Paths folders;
    for (const std::string& data : places.data)
        addOnce(folders, data + "/applications");
    addOnce(folders, places.home + "/Desktop");
    addOnce(folders, places.desktop);
    for (const std::string& config : places.configs)
        addOnce(folders, config + "/autostart");
    return folders;
}

Paths sortedNames(const std::string& folder)
{
    Paths names = listNames(folder);
    std::sort(names.begin(), names.end());
    return names;
}

void addAllBelow(const std::string& folder, int depth, std::vector<Launcher>& launchers,
                 const std::stop_token& stop)
{
    for (const std::string& name : sortedNames(folder)) {
        if (stop.stop_requested())
            return;
        const std::string path = PathText::join(folder, name);
        if (!isLauncherName(name)) {
            if (depth < kDeepest && isRealFolder(path))
                addAllBelow(path, depth + 1, launchers, stop);
            continue;
        }
        // Flatpak and some distributions put links there.
        if (auto launcher = Launcher::read(path, Launcher::Links::followed))
            launchers.push_back(std::move(*launcher));
    }
}

} // namespace

std::vector<Launcher> ofUser()
{
    std::vector<Launcher> launchers;
    for (const std::string& folder : userFolders()) {
        for (const std::string& name : sortedNames(folder)) {
            if (!isLauncherName(name))
                continue;
            if (auto launcher = Launcher::read(PathText::join(folder, name), Launcher::Links::refused))
                launchers.push_back(std::move(*launcher));
        }
    }
    return launchers;
}

std::vector<Launcher> ofSystem(const std::stop_token& stop)
{
    std::vector<Launcher> launchers;
    for (const std::string& data : Places::current().sharedData) {
        if (const std::string folder = resolved(data + "/applications"); !folder.empty())
            addAllBelow(folder, 0, launchers, stop);
    }
    return launchers;
}

std::vector<const Launcher*> starting(const std::vector<Launcher>& launchers, const std::string& app)
{
    std::vector<const Launcher*> found;
    for (const Launcher& launcher : launchers) {
        if (launcher.starts(app))
            found.push_back(&launcher);
    }
    return found;
}

void describe(AppInfo& app, const std::vector<const Launcher*>& launchers)
{
    const auto take = [](std::string& field, const std::string& value) {
        if (field.empty())
            field = value;
    };
    for (const Launcher* launcher : launchers) {
        app.launchers.push_back(launcher->path);
        take(app.bundleID, launcher->identifier);
        take(app.icon, launcher->icon);
        take(app.name, launcher->name);
    }
    for (const Launcher* launcher : launchers)
        take(app.name, launcher->imageName);
}

} // namespace orlen::Launchers

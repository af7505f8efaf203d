#include "tools/apps/Snaps.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/apps/Launcher.h"

#include <algorithm>
#include <map>

namespace orlen::Snaps {

namespace {

/// Names become part of a command that users copy to a terminal.
bool isPlain(std::string_view name)
{
    return !name.empty() && name.front() != '-' &&
           name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") == std::string_view::npos;
}

/// The launchers of each snap, named "snap_application.desktop".
std::map<std::string, std::vector<std::string>> launchersBySnap(const std::string& folder)
{
    std::map<std::string, std::vector<std::string>> snaps;
    for (const std::string& file : listNames(folder)) {
        const std::string snap = file.substr(0, file.find('_'));
        if (file.ends_with(".desktop") && file.size() > snap.size() && isPlain(snap) &&
            PathText::isValidUtf8(file))
            snaps[snap].push_back(file);
    }
    return snaps;
}

/// The newest image of the snap, which is what occupies space; empty if there is none.
std::string imageOf(const std::string& snap, const std::string& folder)
{
    std::string newest;
    TimePoint newestTime = TimePoint::min();
    for (const std::string& name : listNames(folder)) {
        if (!name.starts_with(snap + '_') || !name.ends_with(".snap") || !PathText::isValidUtf8(name))
            continue;
        const std::string path = PathText::join(folder, name);
        const auto status = statusOf(path);
        if (status.ok() && status.value().modified >= newestTime) {
            newest = path;
            newestTime = status.value().modified;
        }
    }
    return newest;
}

/// Whether the snap is installed, or may be. A second instance of one is called "name_key".
bool mayBeInstalled(const std::string& name)
{
    const std::string& root = Places::current().systemRoot;
    const std::string images = root + "/var/lib/snapd/snaps";
    // Without the folder there is no Snap; one that cannot be read tells nothing.
    if (exists(images) && !isListable(images))
        return true;
    return !imageOf(name, images).empty() || exists(PathText::join(root + "/snap", name)) ||
           exists(PathText::join(root + "/var/lib/snapd/snap", name));
}

std::vector<std::string> realFolders(const std::string& folder)
{
    std::vector<std::string> names = listNames(folder);
    std::erase_if(names, [&](const std::string& name) {
        return !PathText::isValidUtf8(name) || !isRealFolder(PathText::join(folder, name));
    });
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

std::vector<Removed> removed()
{
    const std::string& home = Places::current().home;
    std::vector<Removed> snaps;
    for (const std::string& name : realFolders(home + "/snap")) {
        if (!isPlain(name.substr(0, name.find('_'))) || mayBeInstalled(name))
            continue;
        Removed snap{name, {}};
        const std::string folder = PathText::join(home + "/snap", name);
        for (const std::string& part : realFolders(folder))
            snap.folders.push_back(PathText::join(folder, part));
        snaps.push_back(std::move(snap));
    }
    const std::string hidden = home + "/.snap/data";
    for (const std::string& name : realFolders(hidden)) {
        if (isPlain(name.substr(0, name.find('_'))) && !mayBeInstalled(name))
            snaps.push_back({name, {PathText::join(hidden, name)}});
    }
    return snaps;
}

std::vector<AppInfo> installed()
{
    const std::string root = Places::current().systemRoot + "/var/lib/snapd";
    const std::string folder = root + "/desktop/applications";
    std::vector<AppInfo> apps;
    for (auto& [snap, files] : launchersBySnap(folder)) {
        // Of several, the one named like the snap itself is the main one.
        const std::string main = std::string(snap).append("_").append(snap).append(".desktop");
        const bool hasMain = std::find(files.begin(), files.end(), main) != files.end();
        const std::string file =
            PathText::join(folder, hasMain ? main : *std::min_element(files.begin(), files.end()));
        AppInfo app;
        app.path = imageOf(snap, root + "/snaps");
        if (app.path.empty())
            app.path = file;
        app.bundleID = snap;
        app.source = AppSource::snap;
        if (std::string data = Places::current().home + "/snap/" + std::string(snap); isRealFolder(data))
            app.data = std::move(data);
        app.adviceCommand = "snap remove " + snap;
        app.advice = {ToolsTexts::kInstalledBySnap, {{"command", app.adviceCommand}}};
        if (const auto launcher = Launcher::read(file, Launcher::Links::followed)) {
            app.name = launcher->name;
            app.icon = launcher->icon;
        }
        if (app.name.empty())
            app.name = snap;
        apps.push_back(std::move(app));
    }
    return apps;
}

} // namespace orlen::Snaps

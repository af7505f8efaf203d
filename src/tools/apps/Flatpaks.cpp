#include "tools/apps/Flatpaks.h"

#include "clean/Safety.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/KeyFile.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/Launcher.h"

#include <algorithm>
#include <cerrno>

namespace orlen::Flatpaks {

namespace {

struct Installation {
    std::string folder;
    bool isOfUser = false;
};

/// Identifiers become part of a command that users copy to a terminal.
bool isPlain(std::string_view identifier)
{
    return identifier.find_first_not_of(
               "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-") ==
               std::string_view::npos &&
           !identifier.starts_with('.') && !identifier.starts_with('-');
}

/// Further installations set up by an administrator.
std::vector<std::string> furtherFolders(const std::string& settings)
{
    constexpr std::size_t kLimit = 64UL * 1024;
    std::vector<std::string> folders;
    for (const std::string& name : listNames(settings)) {
        const auto text = readSmallFile(PathText::join(settings, name), kLimit);
        KeyFile file(text ? std::string_view(*text) : std::string_view());
        while (const auto line = file.next()) {
            if (line->key == "Path")
                folders.emplace_back(line->value);
        }
    }
    return folders;
}

std::vector<Installation> installations()
{
    const Places& places = Places::current();
    std::vector<Installation> all;
    for (const std::string& data : places.data)
        all.push_back({data + "/flatpak", true});
    all.push_back({places.systemRoot + "/var/lib/flatpak"});
    for (const std::string& folder : furtherFolders(places.systemRoot + "/etc/flatpak/installations.d"))
        all.push_back({places.systemRoot + folder});
    return all;
}

std::vector<std::string> sortedFolders(const std::string& folder)
{
    std::vector<std::string> names = listNames(folder);
    std::erase_if(names, [&](const std::string& name) {
        return !isPlain(name) || !isRealFolder(PathText::join(folder, name));
    });
    std::sort(names.begin(), names.end());
    return names;
}

AppInfo described(const Installation& installation, const std::string& identifier)
{
    AppInfo app;
    app.path = installation.folder + "/app/" + identifier;
    app.bundleID = identifier;
    app.source = AppSource::flatpak;
    app.adviceCommand = std::string("flatpak uninstall --delete-data ") +
                        (installation.isOfUser ? "--user " : "") + identifier;
    app.advice = {ToolsTexts::kInstalledByFlatpak, {{"command", app.adviceCommand}}};
    if (std::string data = Places::current().home + "/.var/app/" + identifier; isRealFolder(data))
        app.data = std::move(data);
    const std::string entry =
        app.path + "/current/active/export/share/applications/" + identifier + ".desktop";
    if (const auto launcher = Launcher::read(entry, Launcher::Links::followed)) {
        app.name = launcher->name;
        app.icon = launcher->icon;
    }
    if (app.name.empty())
        app.name = AppNames::shownName(identifier);
    return app;
}

} // namespace

std::vector<AppInfo> installed()
{
    std::vector<AppInfo> apps;
    for (const Installation& installation : installations()) {
        for (const std::string& identifier : sortedFolders(installation.folder + "/app"))
            apps.push_back(described(installation, identifier));
    }
    return apps;
}

std::vector<AppInfo> removed()
{
    // From inside a sandbox the installations of the system cannot be seen: everything would seem removed.
    if (exists(Places::current().systemRoot + "/.flatpak-info"))
        return {};
    const std::string folder = Places::current().home + "/.var/app";
    std::vector<AppInfo> apps;
    for (const std::string& identifier : sortedFolders(folder)) {
        const std::string path = PathText::join(folder, identifier);
        if (std::count(identifier.begin(), identifier.end(), '.') < 2 || isInstalled(identifier) ||
            Safety::isProtected(path))
            continue;
        AppInfo app;
        app.path = path;
        app.name = AppNames::shownName(identifier);
        app.bundleID = identifier;
        app.source = AppSource::removedFlatpak;
        apps.push_back(std::move(app));
    }
    return apps;
}

bool isInstalled(const std::string& identifier)
{
    const std::vector<Installation> all = installations();
    return std::any_of(all.begin(), all.end(), [&](const Installation& installation) {
        const int error = statusOf(installation.folder + "/app/" + identifier).error();
        return error != ENOENT && error != ENOTDIR;
    });
}

} // namespace orlen::Flatpaks

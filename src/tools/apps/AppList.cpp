#include "tools/apps/AppList.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/OwnProgram.h"
#include "platform/process/RunningPrograms.h"
#include "platform/process/Threads.h"
#include "platform/text/Collation.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/FS.h"
#include "tools/apps/Flatpaks.h"
#include "tools/apps/LastUse.h"
#include "tools/apps/Launchers.h"
#include "tools/apps/Leftovers.h"
#include "tools/apps/RemovableApps.h"
#include "tools/apps/Snaps.h"
#include "tools/apps/mac/Bundles.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <iterator>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AppList {

namespace {

/// Enough to keep the disk busy; each measurement is itself spread over the disk workers.
constexpr std::size_t kMeasuredAtOnce = 4;

void append(std::vector<AppInfo>& apps, std::vector<AppInfo> more)
{
    apps.insert(apps.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

void leaveOutOwn(std::vector<AppInfo>& apps)
{
    const std::string identifier = PathText::asciiLower(OwnProgram::identifier());
    const std::string programs[] = {OwnProgram::executable(), resolved(OwnProgram::path())};
    std::erase_if(apps, [&](const AppInfo& app) {
        const std::string path = resolved(app.path);
        return PathText::asciiLower(app.bundleID) == identifier ||
               std::any_of(std::begin(programs), std::end(programs), [&](const std::string& program) {
                   return !path.empty() && PathText::isAtOrBelow(program, path);
               });
    });
}

void sortByName(std::vector<AppInfo>& apps)
{
    const Collation collation(Places::current().languages);
    std::stable_sort(apps.begin(), apps.end(), [&](const AppInfo& a, const AppInfo& b) {
        return collation.comesBefore(a.name, b.name);
    });
}

/// Bytes of what is measured of an application.
using Size = std::function<std::int64_t(const AppInfo&)>;

void measureEach(std::span<const AppInfo> apps, const Size& size, const Measured& measured,
                 const std::stop_token& stop)
{
    std::atomic<std::size_t> next{0};
    std::mutex telling;
    Threads::runOn("orlen-apps", std::min(kMeasuredAtOnce, apps.size()), [&](std::size_t) {
        for (std::size_t i = next++; i < apps.size(); i = next++) {
            const std::int64_t bytes = size(apps[i]);
            // A stopped measurement is incomplete.
            const std::lock_guard guard(telling);
            if (stop.stop_requested())
                return;
            measured(i, bytes);
        }
    });
}

/// Of what the application stored; its launchers are part of the installation.
std::int64_t leftoverSize(const AppInfo& app, std::span<const AppInfo> listed, const std::stop_token& stop)
{
    std::int64_t bytes = 0;
    for (const FileEntry& entry : Leftovers::find(app, listed, stop).entries) {
        if (std::ranges::find(app.launchers, entry.path) == app.launchers.end())
            bytes = checkedAdd(bytes, entry.size);
    }
    return bytes;
}

bool isInMenus(const DesktopEntry& entry)
{
    return entry.text("Type") == "Application" && !entry.flag("NoDisplay").value_or(false) &&
           !entry.flag("Hidden").value_or(false);
}

/// The folders of launchers that only packages of the distribution write to.
std::vector<std::string> packagedFolders()
{
    std::vector<std::string> folders;
    for (const std::string& data : Places::current().sharedData) {
        std::string folder = resolved(data + "/applications");
        const bool isOthers =
            std::ranges::any_of(std::array{"/flatpak/", "/snapd/", "/usr/local/"},
                                [&](const char* part) { return folder.find(part) != std::string::npos; });
        if (!folder.empty() && !isOthers)
            folders.push_back(std::move(folder));
    }
    return folders;
}

} // namespace

std::vector<AppInfo> list(const std::stop_token& stop)
{
    if (!Places::current().isHomeUsable)
        return {};
    const std::vector<Launcher> launchers = Launchers::ofUser();
    std::vector<AppInfo> apps = Bundles::installed(launchers);
    std::vector<AppInfo> images = RemovableApps::appImages(launchers, stop);
    std::vector<AppInfo> folders = RemovableApps::folders(launchers, images);
    append(apps, std::move(images));
    append(apps, std::move(folders));
    append(apps, Flatpaks::installed());
    append(apps, Snaps::installed());
    append(apps, Flatpaks::removed());
    leaveOutOwn(apps);
    sortByName(apps);
    LastUse::note(apps);
    return apps;
}

void measure(std::span<const AppInfo> apps, const Measured& measured, const std::stop_token& stop)
{
    measureEach(
        apps, [&](const AppInfo& app) { return FS::allocatedSize(app.path, stop); }, measured, stop);
}

void measureData(std::span<const AppInfo> apps, const Measured& measured, const std::stop_token& stop)
{
    measureEach(
        apps,
        [&](const AppInfo& app) {
            return app.data.empty() ? leftoverSize(app, apps, stop) : FS::allocatedSize(app.data, stop);
        },
        measured, stop);
}

std::size_t countPackaged(const std::stop_token& stop)
{
    std::set<std::string> counted;
    for (const std::string& folder : packagedFolders()) {
        for (const std::string& name : listNames(folder)) {
            if (stop.stop_requested())
                return 0;
            if (!name.ends_with(".desktop") || counted.contains(name))
                continue;
            const auto entry = DesktopEntry::read(resolved(PathText::join(folder, name)));
            // What managers copy there is in the list.
            if (entry && isInMenus(*entry) && !entry->has("X-Flatpak") && !entry->has("X-SnapInstanceName"))
                counted.insert(name);
        }
    }
    return counted.size();
}

bool isRunning(const AppInfo& app)
{
    const std::string path = resolved(app.path);
    const std::vector<std::string> programs = RunningPrograms::executables();
    return !path.empty() && std::any_of(programs.begin(), programs.end(), [&](const std::string& program) {
        return PathText::isAtOrBelow(program, path);
    });
}

} // namespace orlen::AppList

#include "tools/apps/AppList.h"

#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/OwnProgram.h"
#include "platform/process/RunningPrograms.h"
#include "platform/process/Threads.h"
#include "platform/text/Collation.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "tools/apps/Flatpaks.h"
#include "tools/apps/Launchers.h"
#include "tools/apps/RemovableApps.h"
#include "tools/apps/Snaps.h"
#include "tools/apps/mac/Bundles.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <mutex>

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
    return apps;
}

void measure(std::span<const AppInfo> apps, const Measured& measured, const std::stop_token& stop)
{
    std::atomic<std::size_t> next{0};
    std::mutex telling;
    Threads::runOn("orlen-apps", std::min(kMeasuredAtOnce, apps.size()), [&](std::size_t) {
        for (std::size_t i = next++; i < apps.size(); i = next++) {
            const std::int64_t bytes = FS::allocatedSize(apps[i].path, stop);
            // A stopped measurement is incomplete.
            const std::lock_guard guard(telling);
            if (stop.stop_requested())
                return;
            measured(i, bytes);
        }
    });
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

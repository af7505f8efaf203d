#include "tools/apps/LastUse.h"

#include "platform/desktop/ActivityUsage.h"
#include "platform/desktop/RecentDocuments.h"
#include "platform/desktop/ShellUsage.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/tree/CurrentMounts.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/Launcher.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <string>
#include <vector>

namespace orlen::LastUse {

namespace {

/// Linux notes no more than one reading of a file a day.
constexpr std::chrono::hours kGrain{24};

/// File names that its launchers have or would have.
std::vector<std::string> launcherNames(const AppInfo& app)
{
    std::vector<std::string> names;
    for (const std::string& launcher : app.launchers)
        names.emplace_back(PathText::lastComponent(launcher));
    if (app.source == AppSource::flatpak)
        names.push_back(app.bundleID + ".desktop");
    if (app.source == AppSource::snap)
        names.push_back(app.bundleID + "_" + app.bundleID + ".desktop");
    return names;
}

/// What desktops and programs have noted.
struct Notes {
    explicit Notes(const Places& places)
        : windows(ShellUsage::ofUser(places)), activities(ActivityUsage::ofUser(places)),
          recent(RecentDocuments::ofUser(places))
    {
    }

    ShellUsage windows;
    ActivityUsage activities;
    RecentDocuments recent;
};

std::optional<TimePoint> noted(const AppInfo& app, const Notes& notes)
{
    const RecentDocuments& recent = notes.recent;
    std::optional<TimePoint> latest = recent.lastUse(std::string(PathText::lastComponent(app.path)));
    // A bare name may be that of another program.
    if (AppNames::isIdentifier(app.bundleID))
        latest = std::max(latest, recent.lastUse(app.bundleID));
    for (const std::string& name : launcherNames(app))
        latest = std::max({latest, notes.windows.lastSeen(name), notes.activities.lastUse(name)});
    return latest;
}

/// What is read when it starts, as far as the user put it there: managers and their checks read theirs too.
std::vector<std::string> programsOf(const AppInfo& app)
{
    if (app.source == AppSource::appImage)
        return {app.path};
    if (app.source != AppSource::folder)
        return {};
    const std::string name = PathText::asciiLower(PathText::lastComponent(app.path));
    std::vector<std::string> programs{app.path + "/AppRun"};
    for (const std::string& folder : {app.path, app.path + "/bin"}) {
        for (const std::string& file : listNames(folder)) {
            if (PathText::asciiLower(file) == name)
                programs.push_back(PathText::join(folder, file));
        }
    }
    for (const std::string& path : app.launchers) {
        const auto launcher = Launcher::read(path, Launcher::Links::refused);
        if (!launcher)
            continue;
        std::ranges::copy_if(
            launcher->programs, std::back_inserter(programs),
            [&](const std::string& program) { return PathText::isAtOrBelow(program, app.path); });
    }
    return programs;
}

/// Where the file system notes no readings, the time is still that of when the file came, or of when it last
/// did note any.
std::optional<TimePoint> lastRead(const std::string& path, const MountTable& mounts)
{
    const auto status = statusOf(path);
    if (!status.ok() || status.value().type != FileType::regular)
        return std::nullopt;
    const FileStatus& file = status.value();
    const Mount* mount = mounts.byId(file.mount);
    const bool isNoted = (mount == nullptr || mount->keepsAccessTimes) &&
                         file.accessed > std::max(file.modified, file.changed);
    return isNoted ? std::optional(file.accessed) : std::nullopt;
}

} // namespace

void note(std::span<AppInfo> apps)
{
    const Notes notes(Places::current());
    const auto mounts = CurrentMounts::table();
    for (AppInfo& app : apps) {
        if (const auto when = noted(app, notes))
            app.lastUse = AppUse{*when, AppUse::Source::desktop};
        std::optional<TimePoint> read;
        for (const std::string& program : programsOf(app))
            read = std::max(read, lastRead(program, *mounts));
        if (read && (!app.lastUse || *read > app.lastUse->when + kGrain))
            app.lastUse = AppUse{*read, AppUse::Source::file};
    }
}

} // namespace orlen::LastUse

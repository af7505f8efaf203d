#include "cli/InstalledApps.h"

#include "tools/apps/AppList.h"

namespace orlen::InstalledApps {

std::vector<AppInfo> list(Sizes sizes, const std::stop_token& stop)
{
    std::vector<AppInfo> apps = AppList::list(stop);
    if (sizes == Sizes::absent)
        return apps;
    std::vector<std::int64_t> bytes(apps.size());
    AppList::measure(
        apps, [&](std::size_t index, std::int64_t size) { bytes[index] = size; }, stop);
    for (std::size_t i = 0; i < apps.size(); ++i)
        apps[i].size = bytes[i];
    return apps;
}

std::string_view kindOf(AppSource source)
{
    switch (source) {
    case AppSource::bundle:
        return "App bundle";
    case AppSource::appImage:
        return "AppImage";
    case AppSource::folder:
        return "Folder";
    case AppSource::flatpak:
        return "Flatpak";
    case AppSource::snap:
        return "Snap";
    case AppSource::removedFlatpak:
        return "App data";
    }
    return {};
}

} // namespace orlen::InstalledApps

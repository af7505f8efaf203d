#include "tools/apps/mac/Bundles.h"

#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/mac/BundleInfo.h"
#include "platform/text/PathText.h"
#include "tools/apps/Launchers.h"

#include <algorithm>
#include <string>

namespace orlen::Bundles {

std::vector<AppInfo> installed(const std::vector<Launcher>& launchers)
{
    const Places& places = Places::current();
    std::vector<AppInfo> apps;
    for (const std::string& folder : {places.applications, places.home + "/Applications"}) {
        std::vector<std::string> names = listNames(folder);
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) {
            if (!name.ends_with(kSuffix) || !PathText::isValidUtf8(name))
                continue;
            AppInfo app;
            app.path = PathText::join(folder, name);
            Launchers::describe(app, Launchers::starting(launchers, app.path));
            app.name = name.substr(0, name.size() - kSuffix.size());
            app.bundleID = BundleInfo::identifier(app.path);
            apps.push_back(std::move(app));
        }
    }
    return apps;
}

} // namespace orlen::Bundles

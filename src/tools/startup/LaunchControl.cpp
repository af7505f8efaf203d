#include "tools/startup/LaunchControl.h"

#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/ChildProcess.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/PackageNames.h"
#include "tools/startup/ServiceManager.h"

#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <utility>

namespace orlen::LaunchControl {

namespace {

std::unique_ptr<ServiceManager> managerOf(LaunchSource source)
{
    switch (source) {
    case LaunchSource::launchAgent:
        return makeLaunchAgents();
    case LaunchSource::systemdUnit:
        return makeSystemdUnits();
    case LaunchSource::autostartEntry:
        return makeAutostartEntries();
    }
    return nullptr;
}

/// The file that tells where an item comes from: for one of the user's, what it runs.
std::string fileOfOrigin(const LaunchItem& item, const Places& places)
{
    if (!PathText::isAtOrBelow(item.path, places.home))
        return item.path;
    const std::string program = item.program.empty() ? "" : ChildProcess::programPath(item.program);
    return program.empty() ? program : resolved(program);
}

void findOrigins(std::vector<LaunchItem>& items)
{
    const Places& places = Places::current();
    std::set<std::string> files;
    for (const LaunchItem& item : items)
        files.insert(fileOfOrigin(item, places));
    const auto packages = PackageNames::of(places, files);
    for (LaunchItem& item : items) {
        const auto package = packages.find(fileOfOrigin(item, places));
        if (item.origin.empty() && package != packages.end())
            item.origin = {ToolsTexts::kPackage, {{"name", package->second}}};
    }
}

} // namespace

std::vector<LaunchItem> load()
{
    std::vector<LaunchItem> items;
    std::vector<LaunchItem> ofEverybody;
    for (const LaunchSource source :
         {LaunchSource::launchAgent, LaunchSource::systemdUnit, LaunchSource::autostartEntry}) {
        for (LaunchItem& item : managerOf(source)->items()) {
            // It could not be shown on a screen or in JSON.
            if (!PathText::isValidUtf8(item.path))
                continue;
            const bool isOwn = item.scope == ToolsTexts::kYourAccount;
            (isOwn ? items : ofEverybody).push_back(std::move(item));
        }
    }
    std::move(ofEverybody.begin(), ofEverybody.end(), std::back_inserter(items));
    findOrigins(items);
    // In somebody else's home folder a change would affect the wrong user.
    for (LaunchItem& item : items) {
        if (!Places::current().isHomeUsable)
            item.forbid(ToolsTexts::kOthersHome);
    }
    return items;
}

bool set(const LaunchItem& item, bool enabled)
{
    return item.isSwitchable && Places::current().isHomeUsable && managerOf(item.source)->set(item, enabled);
}

} // namespace orlen::LaunchControl

#include "tools/startup/LaunchControl.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/ServiceManager.h"

#include <iterator>
#include <memory>
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
    return items;
}

bool set(const LaunchItem& item, bool enabled)
{
    // In somebody else's home folder the change would affect the wrong user.
    return item.isSwitchable && Places::current().isHomeUsable && managerOf(item.source)->set(item, enabled);
}

} // namespace orlen::LaunchControl

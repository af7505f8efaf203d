#include "tools/startup/AutostartRules.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/process/ChildProcess.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace orlen::AutostartRules {

namespace {

/// The names of the current desktop, most specific first; none without a desktop.
std::vector<std::string> currentDesktop()
{
    std::vector<std::string> names;
    const char* variable = std::getenv("XDG_CURRENT_DESKTOP");
    const std::string text = variable == nullptr ? "" : variable;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t colon = std::min(text.find(':', start), text.size());
        if (colon > start)
            names.push_back(text.substr(start, colon - start));
        start = colon + 1;
    }
    return names;
}

bool isForThisDesktop(const DesktopEntry& entry)
{
    const std::vector<std::string> desktop = currentDesktop();
    // Without a desktop, every desktop the user might log in to counts.
    if (desktop.empty())
        return true;
    const std::vector<std::string> only = entry.list("OnlyShowIn");
    const std::vector<std::string> never = entry.list("NotShowIn");
    for (const std::string& name : desktop) {
        if (std::find(only.begin(), only.end(), name) != only.end())
            return true;
        if (std::find(never.begin(), never.end(), name) != never.end())
            return false;
    }
    return !entry.has("OnlyShowIn");
}

} // namespace

bool isEnabled(const DesktopEntry& entry)
{
    return !entry.flag("Hidden").value_or(false) && entry.flag("X-GNOME-Autostart-enabled").value_or(true) &&
           entry.flag("X-MATE-Autostart-enabled").value_or(true);
}

bool isOverride(const DesktopEntry& entry)
{
    return entry.flag(kOverrideKey).value_or(false);
}

bool isForUser(const DesktopEntry& entry)
{
    const bool isStepOfSession = entry.has("X-GNOME-Autostart-Phase") ||
                                 entry.flag("X-GNOME-HiddenUnderSystemd").value_or(false) ||
                                 entry.flag("X-systemd-skip").value_or(false);
    if (isStepOfSession || !isForThisDesktop(entry))
        return false;
    const std::string needed = entry.text("TryExec");
    return needed.empty() || !ChildProcess::programPath(needed).empty();
}

} // namespace orlen::AutostartRules

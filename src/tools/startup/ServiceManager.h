#pragma once

#include "tools/startup/LaunchItem.h"

#include <memory>
#include <vector>

namespace orlen {

/// One of the services that start things at login. Calls block, on child processes of at most five seconds
/// each; any thread.
class ServiceManager {
public:
    ServiceManager() = default;
    ServiceManager(const ServiceManager&) = delete;
    ServiceManager& operator=(const ServiceManager&) = delete;
    virtual ~ServiceManager() = default;

    /// Its items: those of the user's own account first, then those of all users, each by name. Empty where
    /// the service does not exist; files that cannot be read are left out.
    [[nodiscard]] virtual std::vector<LaunchItem> items() const = 0;

    /// Switches one of its items on or off. Off stops it now as well; on starts nothing before the next
    /// login. Whether the change was made.
    [[nodiscard]] virtual bool set(const LaunchItem& item, bool enabled) const = 0;
};

/// Launch agents: property lists in the two "Library/LaunchAgents" folders, switched by the tool at
/// `Places::launchctl`.
[[nodiscard]] std::unique_ptr<ServiceManager> makeLaunchAgents();
/// Units of the user's own service manager, through `systemctl --user`, or through the files where it does
/// not answer.
[[nodiscard]] std::unique_ptr<ServiceManager> makeSystemdUnits();
/// Entries of the desktop's autostart folders.
[[nodiscard]] std::unique_ptr<ServiceManager> makeAutostartEntries();

} // namespace orlen

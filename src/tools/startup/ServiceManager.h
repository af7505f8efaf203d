#pragma once

#include "tools/startup/LaunchItem.h"

#include <memory>
#include <vector>

namespace orlen {

/// One of the services that start things at login. Calls block on child processes, at most five seconds each;
/// any thread.
class ServiceManager {
public:
    ServiceManager() = default;
    ServiceManager(const ServiceManager&) = delete;
    ServiceManager& operator=(const ServiceManager&) = delete;
    virtual ~ServiceManager() = default;

    /// Its items: the user's own first, then those for all users, each sorted by name. Empty if the service
    /// does not exist; unreadable files are left out.
    [[nodiscard]] virtual std::vector<LaunchItem> items() const = 0;

    /// Turns one of its items on or off. Off also stops it now; on takes effect at the next login. Whether it
    /// worked.
    [[nodiscard]] virtual bool set(const LaunchItem& item, bool enabled) const = 0;
};

/// Launch agents: property lists in the two "Library/LaunchAgents" folders, switched by the tool at
/// `Places::launchctl`.
[[nodiscard]] std::unique_ptr<ServiceManager> makeLaunchAgents();
/// The user's systemd units, through `systemctl --user`, or through the files if it does not answer.
[[nodiscard]] std::unique_ptr<ServiceManager> makeSystemdUnits();
/// Entries in the desktop's autostart folders.
[[nodiscard]] std::unique_ptr<ServiceManager> makeAutostartEntries();

} // namespace orlen

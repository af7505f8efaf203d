#pragma once

#include "model/Message.h"

#include <string>

namespace orlen {

/// The kind of file that starts the item.
enum class LaunchSource { launchAgent, systemdUnit, autostartEntry };

/// What makes the item start.
enum class LaunchKind { agent, service, timer, socket, path, autostart };

/// Something that starts when the user logs in. Identified by its path.
struct LaunchItem {
    std::string label;
    std::string path; ///< of the file that describes it, or of the link that starts an instance of a template
    std::string program; ///< what it runs; empty if unknown
    Text scope;          ///< "Your account" or "All users"
    bool enabled = false;
    LaunchSource source = LaunchSource::launchAgent;
    std::string name;             ///< shown to the user: the entry's name, else the label
    bool isPartOfDesktop = false; ///< turning it off may break the desktop
    std::string description;      ///< its purpose in its maker's words; empty if unknown
    /// False if it cannot be switched; `reason` then says why, in one sentence, and is empty otherwise.
    bool isSwitchable = true;
    Text reason;
    std::string command; ///< the whole command line of `program`; empty if unknown
    /// The package or application it comes from; empty if unknown.
    Message origin;

    [[nodiscard]] LaunchKind kind() const;

    /// Makes it unswitchable.
    void forbid(Text why)
    {
        isSwitchable = false;
        reason = why;
    }

    friend bool operator==(const LaunchItem&, const LaunchItem&) = default;
};

/// "service", "timer" and so on.
[[nodiscard]] const char* rawValue(LaunchKind kind);
/// The same for a person.
[[nodiscard]] Text textOf(LaunchKind kind);

} // namespace orlen

#pragma once

#include <string>
#include <string_view>

namespace orlen {

/// What kind of file starts the item.
enum class LaunchSource { launchAgent, systemdUnit, autostartEntry };

/// Something that starts when the user logs in. Identified by its path.
struct LaunchItem {
    std::string label;
    std::string path;    ///< of the file that describes it
    std::string program; ///< what it runs; empty when unknown
    std::string scope;   ///< "Your account" or "All users"
    bool enabled = false;
    LaunchSource source = LaunchSource::launchAgent;
    std::string name;             ///< for people: the entry's name, else the label
    bool isPartOfDesktop = false; ///< switching it off may break the desktop
    std::string description;      ///< what it is for, in its maker's words; empty when unknown
    /// False when no switch can work; `reason` then says why, in one sentence, and is empty otherwise.
    bool isSwitchable = true;
    std::string reason;

    /// Takes the switch away.
    void forbid(std::string_view why)
    {
        isSwitchable = false;
        reason = why;
    }

    friend bool operator==(const LaunchItem&, const LaunchItem&) = default;
};

} // namespace orlen

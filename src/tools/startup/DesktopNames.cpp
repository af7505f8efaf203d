#include "tools/startup/DesktopNames.h"

#include <algorithm>
#include <iterator>

namespace orlen::DesktopNames {

namespace {

constexpr std::string_view kStarts[] = {
    "pipewire",     "wireplumber", "pulseaudio",
    "xdg-",         "gnome-",      "plasma-",
    "dbus",         "gvfs",        "at-spi",
    "gpg-agent",    "ssh-agent",   "dirmngr",
    "keyboxd",      "p11-kit-",    "systemd-",
    "gcr-",         "kde-",        "tracker-",
    "localsearch-", "evolution-",  "org.gnome.SettingsDaemon",
};

/// Short enough to be prefixes of other programs' names.
constexpr std::string_view kNames[] = {"xfce4-notifyd", "mako", "waybar"};

} // namespace

bool isPartOfDesktop(std::string_view label)
{
    std::string_view name = label;
    for (const std::string_view unit : {".service", ".timer", ".socket", ".path"}) {
        if (name.ends_with(unit))
            name.remove_suffix(unit.size());
    }
    return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames) ||
           std::any_of(std::begin(kStarts), std::end(kStarts),
                       [&](std::string_view start) { return label.starts_with(start); });
}

} // namespace orlen::DesktopNames

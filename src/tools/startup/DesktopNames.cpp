#include "tools/startup/DesktopNames.h"

#include <algorithm>
#include <iterator>

namespace orlen::DesktopNames {

namespace {

constexpr std::string_view kStarts[] = {
    "pipewire",
    "wireplumber",
    "pulseaudio",
    "xdg-",
    "gnome-",
    "plasma-",
    "dbus",
    "gvfs",
    "at-spi",
    "gpg-agent",
    "ssh-agent",
    "gcr-",
    "kde-",
    "tracker-",
    "localsearch-",
    "evolution-",
    "org.gnome.SettingsDaemon",
};

/// Short enough to be prefixes of other programs' names.
constexpr std::string_view kNames[] = {"xfce4-notifyd", "mako", "waybar"};

} // namespace

bool isPartOfDesktop(std::string_view label)
{
    constexpr std::string_view kUnit = ".service";
    const std::string_view name =
        label.ends_with(kUnit) ? label.substr(0, label.size() - kUnit.size()) : label;
    return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames) ||
           std::any_of(std::begin(kStarts), std::end(kStarts),
                       [&](std::string_view start) { return label.starts_with(start); });
}

} // namespace orlen::DesktopNames

#include "tools/startup/DesktopNames.h"

#include <algorithm>
#include <array>

namespace orlen::DesktopNames {

namespace {

constexpr std::array<std::string_view, 11> kStarts = {
    "pipewire", "wireplumber", "pulseaudio", "xdg-",      "gnome-",    "plasma-",
    "dbus",     "gvfs",        "at-spi",     "gpg-agent", "ssh-agent",
};

} // namespace

bool isPartOfDesktop(std::string_view label)
{
    return std::any_of(kStarts.begin(), kStarts.end(),
                       [&](std::string_view start) { return label.starts_with(start); });
}

} // namespace orlen::DesktopNames

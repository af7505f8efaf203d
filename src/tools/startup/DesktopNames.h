#pragma once

#include <string_view>

/// Names of what desktops are made of. Pure; any thread.
namespace orlen::DesktopNames {

/// Whether an item of this label is part of a desktop: without it, sound, keys, settings or more may be
/// missing at the next login.
[[nodiscard]] bool isPartOfDesktop(std::string_view label);

} // namespace orlen::DesktopNames

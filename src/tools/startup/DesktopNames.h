#pragma once

#include <string_view>

/// Names of desktop components. Pure; any thread.
namespace orlen::DesktopNames {

/// Whether this label belongs to a part of the desktop: without it, sound, shortcuts, settings or more may be
/// missing at the next login.
[[nodiscard]] bool isPartOfDesktop(std::string_view label);

} // namespace orlen::DesktopNames

#pragma once

#include "tools/apps/AppInfo.h"

#include <span>

/// When applications were last used. Nothing is asked of them. Blocks on the disk.
namespace orlen::LastUse {

/// Notes it where anything tells: what the desktop and the programs noted themselves, or that the program's
/// own file was read later than that. Nothing is noted where nobody can know: no desktop kept a list, and the
/// file system notes no readings.
void note(std::span<AppInfo> apps);

} // namespace orlen::LastUse

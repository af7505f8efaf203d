#pragma once

#include "tools/advice/AdviceTopics.h"

namespace orlen::UnusedRuntimes {

/// Flatpak runtimes that no installed application or other runtime needs, with their extensions.
/// Blocks on the disk.
[[nodiscard]] AdviceFound find(const Places& places);

} // namespace orlen::UnusedRuntimes

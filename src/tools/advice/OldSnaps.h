#pragma once

#include "tools/advice/AdviceTopics.h"

namespace orlen::OldSnaps {

/// Images of Snap applications from before their last update; the command removes each.
/// Blocks on the disk.
[[nodiscard]] AdviceFound find(const Places& places);

} // namespace orlen::OldSnaps

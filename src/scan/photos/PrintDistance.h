#pragma once

#include "platform/images/FeaturePrint.h"

namespace orlen {

/// How different two pictures look: 0 for identical ones, below 0.32 for near-duplicates. Symmetric. The fine
/// stage runs only if the coarse one is inconclusive. Pure; any thread.
[[nodiscard]] float distance(const FeaturePrint& one, const FeaturePrint& other);

} // namespace orlen

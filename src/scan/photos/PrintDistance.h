#pragma once

#include "platform/images/FeaturePrint.h"

#include <optional>

namespace orlen {

/// How different two pictures look: 0 for identical ones, below 0.32 for near-duplicates. Symmetric. The fine
/// stage runs only if the coarse one is inconclusive. Pure; any thread.
[[nodiscard]] float distance(const FeaturePrint& one, const FeaturePrint& other);

/// The coarse stage alone, which is very quick: nothing for pictures that cannot be near-duplicates, else how
/// far their layouts are apart.
[[nodiscard]] std::optional<float> coarseDistance(const FeaturePrint& one, const FeaturePrint& other);

} // namespace orlen

#pragma once

#include "platform/images/FeaturePrint.h"

#include <optional>

namespace orlen {

/// Near-duplicates are less different than this.
inline constexpr float kNearDuplicateLimit = 0.32F;

/// How different two pictures look: 0 for identical ones, below the limit for near-duplicates. Symmetric. The
/// fine stage runs only if the coarse one is inconclusive. Pure; any thread.
[[nodiscard]] float distance(const FeaturePrint& one, const FeaturePrint& other);

/// Vectors of length 1 that are this far apart are of different pictures.
inline constexpr float kCoarseLimit = 0.80F;

/// The coarse stage alone, which is very quick: nothing for pictures that cannot be near-duplicates, else how
/// far their layouts are apart.
[[nodiscard]] std::optional<float> coarseDistance(const FeaturePrint::Direction& one,
                                                  const FeaturePrint::Direction& other);

/// What `distance` comes to for pictures whose layouts are `coarse` apart, which is below the limit, from
/// their unpacked tiles.
[[nodiscard]] float fineDistance(float coarse, const FeaturePrint::Tile& one,
                                 const FeaturePrint::Tile& other);

} // namespace orlen

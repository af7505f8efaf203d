#pragma once

#include "platform/images/FeaturePrint.h"

#include <cstdint>
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
/// The same from the sums of the products of their numbers: of both, and of each with itself.
[[nodiscard]] std::optional<float> coarseDistance(std::int32_t oneOther, std::int32_t oneOne,
                                                  std::int32_t otherOther);

[[nodiscard]] std::int32_t product(const FeaturePrint::Direction& one, const FeaturePrint::Direction& other);

/// Whether `distance` is below `kNearDuplicateLimit` for pictures whose layouts are `coarse` apart, which is
/// below its own limit, from their unpacked tiles.
[[nodiscard]] bool areAlike(float coarse, const FeaturePrint::Tile& one, const FeaturePrint::Tile& other);

} // namespace orlen

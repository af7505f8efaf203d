#pragma once

#include "platform/images/FeaturePrint.h"
#include "scan/photos/BlockSearch.h"

#include <optional>

/// Compares the fine structure of two pictures: the second stage of `distance`. Blocks of one tile are
/// searched in the other, one common motion is fitted to the matches, and what follows it counts. Pure; any
/// thread.
namespace orlen::FineCheck {

/// The share of either tile's structure that is found in the other under one common motion, 0 to 1; much less
/// than changed copies have if there is no hope. Symmetric. About half a millisecond for pictures that agree,
/// a tenth of that for most others. Nothing when neither has fine structure: out of focus, or a soft
/// gradient. When it is below `least`, some number below that, which may take half the time.
[[nodiscard]] std::optional<float> agreement(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other,
                                             float least = 0);

} // namespace orlen::FineCheck

#pragma once

#include "platform/images/FeaturePrint.h"

#include <optional>

/// Looks up the fine structure of one picture in another: the second stage of `distance`. Pure;
/// any thread.
namespace orlen::FineCheck {

/// How much of the structure of either tile is found in the other, all of it moved, turned and stretched by
/// one common motion: 0 for none to 1 for everything. Symmetric. Takes a good part of a millisecond for
/// pictures that agree, a quarter of it for most that do not. Nothing when neither
/// has fine structure: out of focus, or a soft gradient.
[[nodiscard]] std::optional<float> agreement(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other);

} // namespace orlen::FineCheck

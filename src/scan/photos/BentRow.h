#pragma once

#include "platform/images/FeaturePrint.h"

#include <cstdint>
#include <span>

/// A row of pixels that lie on any line through a tile. Pure; any thread.
namespace orlen::BentRow {

/// Pixels of the tile.
struct Point {
    float x = 0;
    float y = 0;
};

/// From a point on, with the same step to each next one. Each is made of the four pixels around it, as much
/// as it is near. Outside, that of the edge.
void fill(const FeaturePrint::Tile& tile, Point first, Point step,
          std::span<std::uint8_t, FeaturePrint::kTileSide> row);

} // namespace orlen::BentRow

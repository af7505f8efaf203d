#pragma once

#include "tools/Treemap.h"

#include <cstddef>
#include <optional>
#include <span>

/// Arrow key navigation on the disk map. Pure; any thread.
namespace orlen::TileStep {

enum class Direction { left, right, up, down };

/// Index of the nearest rectangle in that direction, preferring those level with `from` to diagonal ones;
/// none at the edge of the map.
[[nodiscard]] std::optional<std::size_t> neighbour(std::span<const Treemap::Rect> rects, std::size_t from,
                                                   Direction direction);

} // namespace orlen::TileStep

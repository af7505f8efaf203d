#pragma once

#include "tools/Treemap.h"

#include <cstddef>
#include <optional>
#include <span>

/// Where the arrow keys lead on the disk map. Pure; any thread.
namespace orlen::TileStep {

enum class Direction { left, right, up, down };

/// Number of the rectangle that lies nearest on that side, with one that is level with `from` before one that
/// lies aslant; nothing at the edge of the map.
[[nodiscard]] std::optional<std::size_t> neighbour(std::span<const Treemap::Rect> rects, std::size_t from,
                                                   Direction direction);

} // namespace orlen::TileStep

#pragma once

#include "tools/TreeNode.h"
#include "tools/Treemap.h"
#include "window/diskmap/TileStep.h"

#include <QRectF>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// An item of the disk map and its place in the view.
struct MapTile {
    TreeNode node;
    QRectF area;   ///< in whole points, without the gap to the next tile
    int shade = 0; ///< of the legend of `TileColours`

    /// What tells tiles apart when a folder is measured again.
    [[nodiscard]] std::string key() const;

    friend bool operator==(const MapTile&, const MapTile&) = default;
};

/// The tiles of a folder in a view. Pure; any thread.
namespace MapTiles {

[[nodiscard]] std::vector<MapTile> of(const std::vector<TreeNode>& nodes, Treemap::Size view);
/// Places the tiles anew in a view of another size.
void place(std::vector<MapTile>& tiles, Treemap::Size view);
/// Bytes of all tiles.
[[nodiscard]] std::int64_t total(const std::vector<MapTile>& tiles);
/// The row of an item; -1 if it has no tile of its own.
[[nodiscard]] int rowOf(const std::vector<MapTile>& tiles, const std::string& path);
/// The row of the next tile in a direction; nothing at the edge.
[[nodiscard]] std::optional<int> neighbour(const std::vector<MapTile>& tiles, Treemap::Size view, int row,
                                           TileStep::Direction direction);

} // namespace MapTiles
} // namespace orlen

#include "window/diskmap/MapTiles.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cmath>

namespace orlen {

std::string MapTile::key() const
{
    return node.path + (node.isOther ? "/" : "");
}

namespace MapTiles {

namespace {

constexpr double kTileGap = 2;

/// Leaves out the gap, but keeps at least a visible sliver.
double withoutGap(double length)
{
    return std::max(length - kTileGap, std::min(length, 1.0));
}

/// Rounds edges, not widths, so that all gaps are equally wide.
QRectF placed(const Treemap::Rect& rect)
{
    const double left = std::round(rect.x);
    const double top = std::round(rect.y);
    const double width = std::round(rect.x + rect.width) - left;
    const double height = std::round(rect.y + rect.height) - top;
    return {left, top, withoutGap(width), withoutGap(height)};
}

std::vector<Treemap::Rect> layoutOf(const std::vector<MapTile>& tiles, Treemap::Size view)
{
    std::vector<TreeNode> nodes;
    nodes.reserve(tiles.size());
    for (const MapTile& tile : tiles)
        nodes.push_back(tile.node);
    return Treemap::layout(nodes, view);
}

} // namespace

std::vector<MapTile> of(const std::vector<TreeNode>& nodes, Treemap::Size view)
{
    std::vector<MapTile> tiles;
    tiles.reserve(nodes.size());
    for (const TreeNode& node : nodes)
        tiles.push_back({.node = node, .area = {}});
    place(tiles, view);
    return tiles;
}

void place(std::vector<MapTile>& tiles, Treemap::Size view)
{
    const auto rects = layoutOf(tiles, view);
    for (std::size_t i = 0; i < rects.size(); ++i)
        tiles[i].area = placed(rects[i]);
}

std::int64_t total(const std::vector<MapTile>& tiles)
{
    std::int64_t bytes = 0;
    for (const MapTile& tile : tiles)
        bytes = checkedAdd(bytes, tile.node.size);
    return bytes;
}

int rowOf(const std::vector<MapTile>& tiles, const std::string& path)
{
    const auto found = std::ranges::find_if(
        tiles, [&](const MapTile& tile) { return tile.node.path == path && !tile.node.isOther; });
    return found == tiles.end() ? -1 : static_cast<int>(found - tiles.begin());
}

std::optional<int> neighbour(const std::vector<MapTile>& tiles, Treemap::Size view, int row,
                             TileStep::Direction direction)
{
    const auto next = TileStep::neighbour(layoutOf(tiles, view), static_cast<std::size_t>(row), direction);
    return next ? std::optional(static_cast<int>(*next)) : std::nullopt;
}

} // namespace MapTiles
} // namespace orlen

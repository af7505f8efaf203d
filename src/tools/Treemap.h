#pragma once

#include "tools/TreeNode.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// A squarified treemap: rectangles with areas proportional to values, as close to squares as possible.
/// Lengths are in points, with the origin at the top left. Pure; any thread.
namespace orlen::Treemap {

struct Point {
    double x = 0;
    double y = 0;
};

struct Size {
    double width = 0;
    double height = 0;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    /// Includes the left and top edges but not the right and bottom ones.
    [[nodiscard]] bool contains(Point point) const;
    friend bool operator==(const Rect&, const Rect&) = default;
};

/// How much smaller than its view the map is, in both directions.
inline constexpr double kInset = 12;

/// One rectangle per value, in the same order; values are expected largest first. All empty if `area` is at
/// most one point in either direction or no value is positive.
[[nodiscard]] std::vector<Rect> layout(std::span<const double> values, const Rect& area);

/// What an unread folder takes of the map, as a part of what was measured: its size is not known.
inline constexpr double kUnreadShare = 0.01;

/// The rectangles of the nodes in a view of that size.
[[nodiscard]] std::vector<Rect> layout(std::span<const TreeNode> nodes, Size view);

/// Index of the node at a point of the view.
[[nodiscard]] std::optional<std::size_t> hit(std::span<const TreeNode> nodes, Point point, Size view);

} // namespace orlen::Treemap

#pragma once

#include "tools/TreeNode.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// A squarified treemap: rectangles whose areas are proportional to values, as square as can be. Lengths are
/// in points, the origin is at the top left. Pure; any thread.
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

    /// The left and the upper edge belong to the rectangle, the right and the lower one do not.
    [[nodiscard]] bool contains(Point point) const;
    friend bool operator==(const Rect&, const Rect&) = default;
};

/// How much narrower and lower than its view the map is.
inline constexpr double kInset = 12;

/// One rectangle per value, in the order of the values, which are expected largest first. Zero rectangles
/// when `area` is not larger than one point both ways, or no value is above zero.
[[nodiscard]] std::vector<Rect> layout(std::span<const double> values, const Rect& area);

/// The rectangles of the nodes in a view of that size.
[[nodiscard]] std::vector<Rect> layout(std::span<const TreeNode> nodes, Size view);

/// Number of the node under a point of the view.
[[nodiscard]] std::optional<std::size_t> hit(std::span<const TreeNode> nodes, Point point, Size view);

} // namespace orlen::Treemap

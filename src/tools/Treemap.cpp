#include "tools/Treemap.h"

#include <algorithm>
#include <limits>
#include <numeric>

/// Values become rectangles row by row. A row runs along the shorter side of the remaining area and takes
/// values as long as they make its worst rectangle more square; then the rest is laid out the same way.
namespace orlen::Treemap {

namespace {

struct Row {
    std::size_t length = 0;
    double sum = 0;
};

/// Rounding can use up the area before the last tiny value, whose rectangle is then empty.
double quotient(double a, double b)
{
    return b > 0 ? a / b : 0;
}

/// The row that starts with the first area, along a side of this length.
Row firstRow(std::span<const double> areas, double side)
{
    const double side2 = side * side;
    const double first = areas.front();
    Row row;
    double worst = std::numeric_limits<double>::infinity();
    for (const double area : areas) {
        const double sum = row.sum + area;
        const double sum2 = sum * sum;
        const double ratio = std::max(side2 * first / sum2, sum2 / (side2 * area));
        if (row.length > 0 && worst < ratio)
            break;
        worst = ratio;
        row.sum = sum;
        ++row.length;
    }
    return row;
}

/// Puts the row as a column at the left edge and returns the remaining area.
Rect placeColumn(std::span<const double> areas, double sum, const Rect& rest, std::vector<Rect>& rects)
{
    const double width = quotient(sum, rest.height);
    double y = rest.y;
    for (const double area : areas) {
        const double height = quotient(area, width);
        rects.push_back({rest.x, y, width, height});
        y += height;
    }
    return {rest.x + width, rest.y, std::max(rest.width - width, 0.0), rest.height};
}

/// The same along the top edge.
Rect placeAlongTop(std::span<const double> areas, double sum, const Rect& rest, std::vector<Rect>& rects)
{
    const double height = quotient(sum, rest.width);
    double x = rest.x;
    for (const double area : areas) {
        const double width = quotient(area, height);
        rects.push_back({x, rest.y, width, height});
        x += width;
    }
    return {rest.x, rest.y + height, rest.width, std::max(rest.height - height, 0.0)};
}

} // namespace

bool Rect::contains(Point point) const
{
    return point.x >= x && point.x < x + width && point.y >= y && point.y < y + height;
}

std::vector<Rect> layout(std::span<const double> values, const Rect& area)
{
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    if (!(area.width > 1) || !(area.height > 1) || !(sum > 0))
        return std::vector<Rect>(values.size());
    std::vector<double> areas;
    areas.reserve(values.size());
    for (const double value : values)
        areas.push_back(value * (area.width * area.height) / sum);

    std::vector<Rect> rects;
    rects.reserve(values.size());
    Rect rest = area;
    for (std::span<const double> left = areas; !left.empty();) {
        const Row row = firstRow(left, std::min(rest.width, rest.height));
        const auto place = rest.height <= rest.width ? placeColumn : placeAlongTop;
        rest = place(left.first(row.length), row.sum, rest, rects);
        left = left.subspan(row.length);
    }
    return rects;
}

std::vector<Rect> layout(std::span<const TreeNode> nodes, Size view)
{
    std::vector<double> sizes;
    sizes.reserve(nodes.size());
    double sum = 0;
    for (const TreeNode& node : nodes) {
        sizes.push_back(static_cast<double>(node.size));
        sum += sizes.back();
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].size < 1)
            sizes[i] = sum > 0 ? sum * kUnreadShare : 1;
    }
    return layout(sizes, {0, 0, view.width - kInset, view.height - kInset});
}

std::optional<std::size_t> hit(std::span<const TreeNode> nodes, Point point, Size view)
{
    const std::vector<Rect> rects = layout(nodes, view);
    const auto found =
        std::find_if(rects.begin(), rects.end(), [&](const Rect& rect) { return rect.contains(point); });
    if (found == rects.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - rects.begin());
}

} // namespace orlen::Treemap

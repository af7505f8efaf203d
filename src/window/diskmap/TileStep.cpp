#include "window/diskmap/TileStep.h"

#include <algorithm>
#include <limits>

namespace orlen::TileStep {

namespace {

/// Rounding may make neighbours overlap slightly.
constexpr double kTolerance = 0.01;
/// How much nearer a diagonal tile must be to win over a level one.
constexpr double kAslant = 3;

/// A rectangle as seen in the direction of the step: `along` it, and `across`.
struct Extent {
    double alongStart = 0;
    double alongEnd = 0;
    double acrossStart = 0;
    double acrossEnd = 0;

    [[nodiscard]] double acrossMiddle() const { return (acrossStart + acrossEnd) / 2; }
};

Extent seen(const Treemap::Rect& rect, Direction direction)
{
    const double right = rect.x + rect.width;
    const double bottom = rect.y + rect.height;
    switch (direction) {
    case Direction::left:
        return {-right, -rect.x, rect.y, bottom};
    case Direction::right:
        return {rect.x, right, rect.y, bottom};
    case Direction::up:
        return {-bottom, -rect.y, rect.x, right};
    case Direction::down:
        return {rect.y, bottom, rect.x, right};
    }
    return {};
}

double distance(const Extent& from, const Extent& to)
{
    const double middle = from.acrossMiddle();
    const double aslant = std::max({to.acrossStart - middle, middle - to.acrossEnd, 0.0});
    return to.alongStart - from.alongEnd + kAslant * aslant;
}

} // namespace

std::optional<std::size_t> neighbour(std::span<const Treemap::Rect> rects, std::size_t from,
                                     Direction direction)
{
    const Extent start = seen(rects[from], direction);
    std::optional<std::size_t> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < rects.size(); ++i) {
        const Extent candidate = seen(rects[i], direction);
        if (i == from || candidate.alongStart < start.alongEnd - kTolerance)
            continue;
        const double away = distance(start, candidate);
        if (away < least) {
            least = away;
            nearest = i;
        }
    }
    return nearest;
}

} // namespace orlen::TileStep

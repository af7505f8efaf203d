#pragma once

#include "clean/Snapshot.h"

#include <optional>
#include <utility>
#include <vector>

namespace orlen {

/// The free space of the past and its forecast, as lines in a chart. Coordinates run from 0 to 1: x is time
/// and to scale, y is free space, 0 for a full disk. Pure; any thread.
struct ForecastCurve {
    struct Point {
        double x = 0;
        double y = 0;
    };
    using Line = std::pair<Point, Point>;

    std::vector<Point> known; ///< a point for each snapshot, oldest first; empty without a span of time
    /// The straight line through the known points, over their span.
    std::optional<Line> fitted;
    /// From the newest point on: to the moment when the disk is full, or to the edge when that is far away.
    std::optional<Line> forecast;

    [[nodiscard]] static ForecastCurve of(std::vector<Snapshot> snapshots);
};

} // namespace orlen

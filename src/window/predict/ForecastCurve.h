#pragma once

#include "clean/Snapshot.h"

#include <optional>
#include <utility>
#include <vector>

namespace orlen {

/// Past free space and its forecast as chart lines. Coordinates run from 0 to 1: x is time, to scale; y is
/// free space, 0 for a full disk. Pure; any thread.
struct ForecastCurve {
    struct Point {
        double x = 0;
        double y = 0;
    };
    using Line = std::pair<Point, Point>;

    std::vector<Point> known; ///< one per snapshot, oldest first; empty unless they span some time
    /// The straight line fitted to the known points, over their span.
    std::optional<Line> fitted;
    /// From the newest point to the moment the disk is full, or to the edge if that is far away.
    std::optional<Line> forecast;

    [[nodiscard]] static ForecastCurve of(std::vector<Snapshot> snapshots);
};

} // namespace orlen

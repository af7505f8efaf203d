#pragma once

#include "clean/Snapshot.h"
#include "platform/values/Time.h"

#include <cstdint>
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

    /// A round amount of free space.
    struct Mark {
        double y = 0;
        std::int64_t bytes = 0;
    };

    TimePoint start;          ///< where x is 0
    double days = 0;          ///< from x 0 to x 1
    double bytes = 0;         ///< from y 0 to y 1
    std::vector<Mark> scale;  ///< from bottom to top, without that of the full disk
    std::vector<Point> known; ///< one per snapshot, oldest first; empty unless they span some time
    /// The straight line fitted to the known points, over their span.
    std::optional<Line> fitted;
    /// From the newest point to the moment the disk is full, or to the edge if that is far away.
    std::optional<Line> forecast;

    [[nodiscard]] TimePoint dateAt(double x) const;
    [[nodiscard]] std::int64_t bytesAt(double y) const;
    /// The nearest known point, or behind those the one on the line of the forecast; nothing without a curve.
    [[nodiscard]] std::optional<Point> pointAt(double x) const;
    /// The next point that is known, or the end of the forecast, in that direction.
    [[nodiscard]] std::optional<Point> pointBeside(double x, int direction) const;

    [[nodiscard]] static ForecastCurve of(std::vector<Snapshot> snapshots);
};

} // namespace orlen

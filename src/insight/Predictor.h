#pragma once

#include "clean/Snapshot.h"
#include "model/Message.h"
#include "model/OrlenCategory.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace orlen {

/// A forecast of how used space grows.
struct Prediction {
    bool enoughData = false; ///< false while the history is too short for an estimate
    Message headline;
    Message detail;
    bool warn = false;              ///< the disk is expected to be full within 60 days
    std::optional<double> daysLeft; ///< from the last scan until the disk is full; absent if it isn't growing
    std::vector<std::pair<OrlenCategory, double>> perCategory; ///< bytes per day, fastest first
    std::vector<double> freeSeries;                            ///< free bytes of every snapshot, oldest first

    friend bool operator==(const Prediction&, const Prediction&) = default;
};

/// Least-squares forecast from the snapshots of past scans. Pure; any thread.
namespace Predictor {

[[nodiscard]] Prediction predict(std::vector<Snapshot> snapshots);

struct Point {
    double x = 0;
    double y = 0;
};

/// Ordinary least-squares slope of y over x; 0 for fewer than two points or if all x are equal.
[[nodiscard]] double slope(std::span<const Point> points);

/// A number of days in words, as in the headline.
[[nodiscard]] Message duration(double days);

} // namespace Predictor
} // namespace orlen

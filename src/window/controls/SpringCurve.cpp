#include "window/controls/SpringCurve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orlen {

namespace {

/// With more than ten, Qt 6.4 writes past its buffer.
constexpr int kSegments = 8;
/// A spring of these damping fractions is within a thousandth of its end after this many responses.
constexpr double kDurationInResponses = 1.4;

struct Motion {
    double position = 0;
    double speed = 0; ///< per second
};

Motion motionAt(double time, double response, double damping)
{
    const double z = std::clamp(damping, 0.05, 0.999);
    const double w = 2 * std::numbers::pi / response;
    const double v = w * std::sqrt(1 - z * z);
    const double decay = std::exp(-z * w * time);
    const double position = 1 - decay * (std::cos(v * time) + z * w / v * std::sin(v * time));
    const double speed = decay * (w * w / v) * std::sin(v * time);
    return {position, speed};
}

} // namespace

int SpringCurve::duration() const
{
    return static_cast<int>(std::lround(m_response * kDurationInResponses * 1000));
}

QVariantList SpringCurve::curve() const
{
    QVariantList points;
    points.reserve(qsizetype{kSegments} * 6);
    const double total = m_response * kDurationInResponses;
    const double step = total / kSegments;
    for (int segment = 0; segment < kSegments; ++segment) {
        // Converts a Hermite segment to Bézier: the inner points are a third of the way along the tangents.
        const double start = segment * step;
        const Motion from = motionAt(start, m_response, m_damping);
        const Motion to = motionAt(start + step, m_response, m_damping);
        const bool isLast = segment == kSegments - 1;
        const double end = isLast ? 1 : to.position;
        points << (start + step / 3) / total << from.position + from.speed * step / 3;
        points << (start + 2 * step / 3) / total << end - (isLast ? 0 : to.speed * step / 3);
        points << (isLast ? 1 : (start + step) / total) << end;
    }
    return points;
}

} // namespace orlen

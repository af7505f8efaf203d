#include "window/predict/ForecastCurve.h"

#include "insight/Predictor.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>

namespace orlen {

namespace {

using Days = std::chrono::duration<double, std::chrono::days::period>;

/// Room above the highest point.
constexpr double kHeadroom = 1.2;
/// Fraction of the width for the past: at most this when the disk fills up soon, at least that when not.
constexpr double kLargestPast = 0.8;
constexpr double kSmallestPast = 0.55;

/// x in days since the first snapshot, y in used bytes.
std::vector<Predictor::Point> usedOverTime(const std::vector<Snapshot>& sorted)
{
    std::vector<Predictor::Point> points;
    points.reserve(sorted.size());
    for (const Snapshot& snapshot : sorted) {
        // As doubles, because the nanoseconds between two arbitrary dates may not fit into 64 bits.
        const Days x = Days(snapshot.date.time_since_epoch()) - Days(sorted.front().date.time_since_epoch());
        points.push_back(
            {x.count(), static_cast<double>(snapshot.total) - static_cast<double>(snapshot.free)});
    }
    return points;
}

double mean(const std::vector<Predictor::Point>& points, double Predictor::Point::*coordinate)
{
    const auto add = [&](double sum, const Predictor::Point& point) { return sum + point.*coordinate; };
    return std::accumulate(points.begin(), points.end(), 0.0, add) / static_cast<double>(points.size());
}

/// The axes: days from left to right, free bytes from bottom to top.
struct Scale {
    double days = 1;
    double bytes = 1;

    [[nodiscard]] ForecastCurve::Point point(double day, double free) const
    {
        return {day / days, std::clamp(free / bytes, 0.0, 1.0)};
    }
};

/// Two to four round amounts: 1, 2 or 5 of some power of ten.
std::vector<ForecastCurve::Mark> marksUpTo(double bytes)
{
    const double power = std::pow(10, std::floor(std::log10(bytes)));
    double step = power / 2;
    for (const double times : {5.0, 2.0, 1.0}) {
        if (2 * times * power <= bytes) {
            step = times * power;
            break;
        }
    }
    std::vector<ForecastCurve::Mark> marks;
    for (int number = 1; number * step <= bytes; ++number)
        marks.push_back({number * step / bytes, std::llround(number * step)});
    return marks;
}

/// Time is to scale on both sides of now, so a distant end of the forecast lies beyond the edge.
double shownDays(double past, double free, double growth)
{
    const double least = past / kLargestPast;
    const double most = past / kSmallestPast;
    return growth > 0 ? std::clamp(past + free / growth, least, most) : least;
}

} // namespace

ForecastCurve ForecastCurve::of(std::vector<Snapshot> snapshots)
{
    std::ranges::stable_sort(snapshots, {}, &Snapshot::date);
    const std::vector<Predictor::Point> used = usedOverTime(snapshots);
    const double past = used.empty() ? 0 : used.back().x;
    if (!(past > 0))
        return {};

    const double growth = Predictor::slope(used);
    const double free = std::max(0.0, static_cast<double>(snapshots.back().free));
    const auto roomiest = std::ranges::max_element(snapshots, {}, &Snapshot::free);
    const double days = shownDays(past, free, growth);
    const Scale scale{days, std::max(1.0, static_cast<double>(roomiest->free)) * kHeadroom};

    ForecastCurve curve;
    curve.start = snapshots.front().date;
    curve.days = scale.days;
    curve.bytes = scale.bytes;
    curve.scale = marksUpTo(scale.bytes);
    for (std::size_t i = 0; i < snapshots.size(); ++i)
        curve.known.push_back(scale.point(used[i].x, static_cast<double>(snapshots[i].free)));
    const double total = static_cast<double>(snapshots.back().total);
    const auto fit = [&](double day) {
        return total - mean(used, &Predictor::Point::y) - growth * (day - mean(used, &Predictor::Point::x));
    };
    curve.fitted = Line{scale.point(0, fit(0)), scale.point(past, fit(past))};
    const double fullAfter = growth > 0 ? free / growth : days;
    const double end = std::min(fullAfter, days - past);
    curve.forecast = Line{scale.point(past, free), scale.point(past + end, free - growth * end)};
    return curve;
}

TimePoint ForecastCurve::dateAt(double x) const
{
    // Far less than the clock can hold, however odd the dates of the snapshots are.
    constexpr double kMostDays = 50'000;
    const Days after(std::clamp(x * days, 0.0, kMostDays));
    return start + std::chrono::duration_cast<TimePoint::duration>(after);
}

std::int64_t ForecastCurve::bytesAt(double y) const
{
    return std::llround(std::clamp(y, 0.0, 1.0) * bytes);
}

std::optional<ForecastCurve::Point> ForecastCurve::pointAt(double x) const
{
    if (known.empty())
        return std::nullopt;
    if (forecast && x > known.back().x) {
        const auto& [from, to] = *forecast;
        const double part = to.x > from.x ? std::clamp((x - from.x) / (to.x - from.x), 0.0, 1.0) : 0;
        return Point{std::lerp(from.x, to.x, part), std::lerp(from.y, to.y, part)};
    }
    return *std::ranges::min_element(known, {}, [x](const Point& point) { return std::abs(point.x - x); });
}

std::optional<ForecastCurve::Point> ForecastCurve::pointBeside(double x, int direction) const
{
    std::vector<Point> stops = known;
    if (forecast && !known.empty())
        stops.push_back(forecast->second);
    std::optional<Point> beside;
    for (const Point& stop : stops) {
        const bool isBeside = direction > 0 ? stop.x > x : stop.x < x;
        if (isBeside && (!beside || direction < 0))
            beside = stop;
    }
    return beside;
}

} // namespace orlen

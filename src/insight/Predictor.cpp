#include "insight/Predictor.h"

#include "insight/InsightTexts.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <functional>
#include <iterator>
#include <numeric>
#include <optional>

namespace orlen::Predictor {

namespace {

using Days = std::chrono::duration<double, std::chrono::days::period>;

/// Readings closer together say nothing about growth.
constexpr std::chrono::hours kShortestSpan{6};
/// Slower growth, in bytes per day, counts as none.
constexpr double kStableGrowth = 1'000'000;
/// Warn about a disk that will be full sooner than this, in days.
constexpr double kWarningDays = 60;

/// Microseconds, since nanoseconds between two arbitrary dates may overflow 64 bits.
std::chrono::microseconds between(TimePoint earlier, TimePoint later)
{
    return std::chrono::floor<std::chrono::microseconds>(later) -
           std::chrono::floor<std::chrono::microseconds>(earlier);
}

bool isLongEnough(std::span<const Snapshot> sorted)
{
    return sorted.size() >= 2 && between(sorted.front().date, sorted.back().date) >= kShortestSpan;
}

/// Growth in bytes per day of what `bytesOf` reads from each snapshot that has it; nothing for fewer than two
/// readings.
template <typename BytesOf>
std::optional<double> growth(std::span<const Snapshot> sorted, BytesOf bytesOf)
{
    std::vector<Point> points;
    points.reserve(sorted.size());
    for (const Snapshot& snapshot : sorted) {
        const std::optional<std::int64_t> bytes = bytesOf(snapshot);
        if (bytes)
            points.push_back(
                {Days(between(sorted.front().date, snapshot.date)).count(), static_cast<double>(*bytes)});
    }
    if (points.size() < 2)
        return std::nullopt;
    return slope(points);
}

std::optional<std::int64_t> usedBytes(const Snapshot& snapshot)
{
    return checkedSubtract(snapshot.total, snapshot.free);
}

std::vector<std::pair<OrlenCategory, double>> growthPerCategory(std::span<const Snapshot> sorted)
{
    std::vector<std::pair<OrlenCategory, double>> rates;
    for (const OrlenCategory category : kAllCategories) {
        const std::string key(rawValue(category));
        const auto rate = growth(sorted, [&](const Snapshot& snapshot) -> std::optional<std::int64_t> {
            const auto found = snapshot.cats.find(key);
            return found == snapshot.cats.end() ? std::nullopt : std::optional(found->second);
        });
        if (rate)
            rates.emplace_back(category, *rate);
    }
    std::ranges::stable_sort(rates, std::greater{}, &std::pair<OrlenCategory, double>::second);
    return rates;
}

void describeTooLittle(Prediction& prediction)
{
    prediction.headline = InsightTexts::kStillLearning;
    prediction.detail = InsightTexts::kTooFewScans;
}

void describeGrowth(Prediction& prediction, double bytesPerDay, std::int64_t free)
{
    const double daysLeft = static_cast<double>(free) / bytesPerDay;
    prediction.headline = {InsightTexts::kNearlyFull, {{"time", within(duration(daysLeft))}}};
    prediction.detail = {InsightTexts::kGrowing,
                         {{"size", Bytes{checkedInteger(bytesPerDay)}}, {"free", Bytes{free}}}};
    prediction.daysLeft = daysLeft;
    prediction.warn = daysLeft < kWarningDays;
}

void describeStability(Prediction& prediction, std::int64_t scans)
{
    prediction.headline = InsightTexts::kStable;
    prediction.detail = {InsightTexts::kNotGrowing, {{"count", scans}}};
}

} // namespace

Prediction predict(std::vector<Snapshot> snapshots)
{
    std::ranges::stable_sort(snapshots, {}, &Snapshot::date);
    Prediction prediction;
    std::ranges::transform(snapshots, std::back_inserter(prediction.freeSeries),
                           [](const Snapshot& snapshot) { return static_cast<double>(snapshot.free); });
    if (!isLongEnough(snapshots)) {
        describeTooLittle(prediction);
        return prediction;
    }
    prediction.enoughData = true;
    prediction.perCategory = growthPerCategory(snapshots);
    const double bytesPerDay = growth(snapshots, usedBytes).value_or(0);
    if (bytesPerDay > kStableGrowth)
        describeGrowth(prediction, bytesPerDay, snapshots.back().free);
    else
        describeStability(prediction, std::ssize(snapshots));
    return prediction;
}

double slope(std::span<const Point> points)
{
    if (points.size() < 2)
        return 0;
    const auto mean = [&](double Point::*coordinate) {
        const auto add = [&](double sum, const Point& point) { return sum + point.*coordinate; };
        return std::accumulate(points.begin(), points.end(), 0.0, add) / static_cast<double>(points.size());
    };
    const double meanX = mean(&Point::x);
    const double meanY = mean(&Point::y);
    double sxy = 0;
    double sxx = 0;
    for (const Point& point : points) {
        sxy += (point.x - meanX) * (point.y - meanY);
        sxx += (point.x - meanX) * (point.x - meanX);
    }
    return sxx == 0 ? 0 : sxy / sxx;
}

Message duration(double days)
{
    const auto about = [](const Text& text, double number) {
        return Message{text, {{"count", std::int64_t{std::llround(number)}}}};
    };
    if (days < 1)
        return InsightTexts::kLessThanADay;
    if (days < 14)
        return about(InsightTexts::kAboutDays, days);
    if (days < 60)
        return about(InsightTexts::kAboutWeeks, days / 7);
    if (days < 730)
        return about(InsightTexts::kAboutMonths, days / 30);
    return InsightTexts::kMoreThanTwoYears;
}

} // namespace orlen::Predictor

#include "window/predict/ForecastCurve.h"

#include <gtest/gtest.h>

namespace orlen {

namespace {

using namespace std::chrono_literals;

constexpr std::int64_t kGB = 1'000'000'000;

Snapshot reading(int day, std::int64_t freeGB)
{
    return {TimePoint{} + std::chrono::days(20'000 + day), freeGB * kGB, 500 * kGB, {}};
}

} // namespace

TEST(ForecastCurveTest, needsASpanOfTime)
{
    EXPECT_TRUE(ForecastCurve::of({}).known.empty());
    EXPECT_TRUE(ForecastCurve::of({reading(0, 100)}).known.empty());
    const ForecastCurve atOnce = ForecastCurve::of({reading(3, 100), reading(3, 90)});
    EXPECT_TRUE(atOnce.known.empty());
    EXPECT_FALSE(atOnce.forecast);
}

TEST(ForecastCurveTest, reachesTheFullDiskOnItsDay)
{
    // 2 GB a day, 20 GB left: full after 10 more days, half of the 20 that are known. Given out of order.
    const ForecastCurve curve = ForecastCurve::of({reading(20, 20), reading(0, 60), reading(10, 40)});
    ASSERT_EQ(curve.known.size(), 3U);
    ASSERT_TRUE(curve.forecast && curve.fitted);
    EXPECT_DOUBLE_EQ(curve.known[0].x, 0);
    EXPECT_DOUBLE_EQ(curve.known[1].x, curve.known[2].x / 2);
    EXPECT_NEAR(curve.known[2].y, curve.known[0].y / 3, 1e-9);
    EXPECT_DOUBLE_EQ(curve.forecast->first.x, curve.known[2].x);
    EXPECT_NEAR(curve.forecast->second.x, 1, 1e-9);
    EXPECT_NEAR(curve.forecast->second.x - curve.known[2].x, curve.known[2].x / 2, 1e-9);
    EXPECT_NEAR(curve.forecast->second.y, 0, 1e-9);
    // The readings lie on a line, which is the fitted one.
    EXPECT_NEAR(curve.fitted->first.y, curve.known[0].y, 1e-9);
    EXPECT_NEAR(curve.fitted->second.y, curve.known[2].y, 1e-9);
}

TEST(ForecastCurveTest, tellsDatesAndFiguresOfItsPoints)
{
    const ForecastCurve curve = ForecastCurve::of({reading(20, 20), reading(0, 60), reading(10, 40)});
    const auto day = [](int number) { return reading(number, 0).date; };
    const auto isOn = [&](std::optional<ForecastCurve::Point> point, int number, std::int64_t freeGB) {
        ASSERT_TRUE(point);
        EXPECT_LT(std::chrono::abs(curve.dateAt(point->x) - day(number)), 1s);
        EXPECT_NEAR(static_cast<double>(curve.bytesAt(point->y)), static_cast<double>(freeGB * kGB), 1);
    };
    isOn(curve.pointAt(0.1), 0, 60);
    isOn(curve.pointAt(0.3), 10, 40);
    isOn(curve.pointAt(25.0 / 30), 25, 10);
    isOn(curve.pointAt(9), 30, 0);
    isOn(curve.pointBeside(curve.known[1].x, 1), 20, 20);
    isOn(curve.pointBeside(curve.known[1].x, -1), 0, 60);
    isOn(curve.pointBeside(curve.known[2].x, 1), 30, 0);
    isOn(curve.pointBeside(1, -1), 20, 20);
    EXPECT_FALSE(curve.pointBeside(0, -1));
    EXPECT_FALSE(curve.pointBeside(1, 1));
    EXPECT_FALSE(ForecastCurve::of({}).pointAt(0.5));
    std::vector<std::int64_t> marks;
    for (const ForecastCurve::Mark& mark : curve.scale)
        marks.push_back(mark.bytes / kGB);
    EXPECT_EQ(marks, (std::vector<std::int64_t>{20, 40, 60})) << "up to 72 GB";
}

TEST(ForecastCurveTest, leavesTheChartBeforeAFarAwayDay)
{
    const ForecastCurve curve = ForecastCurve::of({reading(0, 201), reading(10, 200)});
    ASSERT_TRUE(curve.forecast);
    EXPECT_NEAR(curve.forecast->second.x, 1, 1e-9);
    EXPECT_GT(curve.forecast->second.y, 0.5);
    EXPECT_GT(curve.known.back().x, 0.5);
}

TEST(ForecastCurveTest, staysInsideTheChart)
{
    struct Case {
        const char* name;
        std::vector<Snapshot> snapshots;
    };
    const Case cases[] = {
        {"space is being freed fast", {reading(0, 10), reading(1, 400)}},
        {"nothing changes", {reading(0, 100), reading(30, 100)}},
        {"full already", {reading(0, 50), reading(5, 0)}},
        {"more than full", {reading(0, 1), reading(5, -3)}},
        {"always full", {reading(0, 0), reading(5, 0)}},
        {"a jump at the end", {reading(0, 400), reading(1, 400), reading(2, 1)}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const ForecastCurve curve = ForecastCurve::of(c.snapshots);
        ASSERT_TRUE(curve.forecast && curve.fitted);
        std::vector<ForecastCurve::Point> points = curve.known;
        points.insert(points.end(), {curve.fitted->first, curve.fitted->second, curve.forecast->first,
                                     curve.forecast->second});
        for (const auto& [x, y] : points) {
            EXPECT_TRUE(x >= 0 && x <= 1 + 1e-9) << x;
            EXPECT_TRUE(y >= 0 && y <= 1) << y;
        }
    }
}

} // namespace orlen

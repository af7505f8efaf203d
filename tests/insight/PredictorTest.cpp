#include "insight/Predictor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orlen {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Pair;

constexpr std::int64_t kGigabyte = 1'000'000'000;
constexpr TimePoint kStart = std::chrono::sys_days{std::chrono::year{2025} / 3 / 1};

Snapshot snapshot(std::chrono::seconds after, std::int64_t free,
                  std::map<std::string, std::int64_t> cats = {})
{
    return {kStart + after, free, 1'000 * kGigabyte, std::move(cats)};
}

TEST(PredictorTest, tooShortAHistoryIsStillLearned)
{
    struct Case {
        const char* name;
        std::vector<Snapshot> snapshots;
        bool isEnough;
    };
    const Case cases[] = {
        {"none", {}, false},
        {"one", {snapshot(0s, 5)}, false},
        {"same time", {snapshot(0s, 5), snapshot(0s, 6), snapshot(0s, 7)}, false},
        {"a second less than six hours", {snapshot(0s, 5), snapshot(6h - 1s, 6)}, false},
        {"six hours", {snapshot(0s, 5), snapshot(6h, 6)}, true},
        {"six hours, newest first", {snapshot(6h, 5), snapshot(0s, 6)}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Prediction prediction = Predictor::predict(c.snapshots);
        EXPECT_EQ(prediction.enoughData, c.isEnough);
        EXPECT_EQ(prediction.headline.base() == "Still learning your Mac", !c.isEnough);
        EXPECT_EQ(prediction.freeSeries.size(), c.snapshots.size());
        EXPECT_FALSE(prediction.warn);
    }
}

TEST(PredictorTest, snapshotsAreTakenInOrderOfDate)
{
    const Prediction prediction = Predictor::predict({snapshot(24h, 2), snapshot(48h, 3), snapshot(0h, 1)});
    EXPECT_THAT(prediction.freeSeries, ElementsAre(1, 2, 3));
}

TEST(PredictorTest, verdictGoesByGrowthAndFreeSpace)
{
    struct Case {
        const char* name;
        std::int64_t perDay;
        std::int64_t freeAtLast;
        const char* headline;
        const char* detail;
        bool warn;
    };
    constexpr Case cases[] = {
        {"fast", 2 * kGigabyte, 100 * kGigabyte, "Disk nearly full in about 7 weeks",
         "Used space is growing by about 2 GB per day, and 100 GB is free.", true},
        {"enough left", 2 * kGigabyte, 200 * kGigabyte, "Disk nearly full in about 3 months",
         "Used space is growing by about 2 GB per day, and 200 GB is free.", false},
        {"sixty days are no warning", kGigabyte, 60 * kGigabyte, "Disk nearly full in about 2 months",
         "Used space is growing by about 1 GB per day, and 60 GB is free.", false},
        {"full already", kGigabyte, 0, "Disk nearly full in less than a day",
         "Used space is growing by about 1 GB per day, and 0 bytes is free.", true},
        {"overcommitted", kGigabyte, -5, "Disk nearly full in less than a day",
         "Used space is growing by about 1 GB per day, and 0 bytes is free.", true},
        {"just above stable", 1'000'001, kGigabyte, "Disk nearly full in more than 2 years",
         "Used space is growing by about 1 MB per day, and 1 GB is free.", false},
        {"just stable", 1'000'000, kGigabyte, "Your free space is stable",
         "Based on 3 scans, used space isn't growing.", false},
        {"shrinking", -kGigabyte, kGigabyte, "Your free space is stable",
         "Based on 3 scans, used space isn't growing.", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Prediction prediction =
            Predictor::predict({snapshot(0h, c.freeAtLast + 2 * c.perDay),
                                snapshot(24h, c.freeAtLast + c.perDay), snapshot(48h, c.freeAtLast)});
        EXPECT_EQ(prediction.headline.base(), c.headline);
        EXPECT_EQ(prediction.detail.base(), c.detail);
        EXPECT_EQ(prediction.warn, c.warn);
        EXPECT_TRUE(prediction.enoughData);
    }
}

TEST(PredictorTest, categoriesAreSortedByGrowthAndNeedTwoReadings)
{
    const Prediction prediction = Predictor::predict({
        snapshot(0h, 0, {{"apps", 50}, {"caches", 10}, {"media", 4}, {"photos", 4}, {"system", 9}, {"x", 1}}),
        snapshot(24h, 0,
                 {{"apps", 40}, {"caches", 30}, {"media", 4}, {"photos", 4}, {"documents", 8}, {"x", 9}}),
        snapshot(48h, 0, {{"apps", 30}, {"caches", 50}, {"system", 19}}),
    });
    // Documents were read once; system's missing reading in the middle counts as none, not as 0.
    EXPECT_THAT(prediction.perCategory,
                ElementsAre(Pair(OrlenCategory::caches, 20), Pair(OrlenCategory::system, 5),
                            Pair(OrlenCategory::photos, 0), Pair(OrlenCategory::media, 0),
                            Pair(OrlenCategory::apps, -10)));
}

TEST(PredictorTest, datesCenturiesApartDoNotOverflow)
{
    const Prediction prediction =
        Predictor::predict({{TimePoint::min(), 5, 10, {}}, {TimePoint::max(), 5, 10, {}}});
    EXPECT_EQ(prediction.headline.base(), "Your free space is stable");
}

TEST(PredictorDeathTest, usedSpaceThatDoesNotFitStopsTheProgram)
{
    const std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    const std::vector<Snapshot> corrupt{{kStart, -1, largest, {}}, {kStart + 24h, 0, 0, {}}};
    EXPECT_DEATH((void)Predictor::predict(corrupt), "does not fit");
}

TEST(PredictorTest, slopeIsThatOfLeastSquares)
{
    using Points = std::vector<Predictor::Point>;
    EXPECT_EQ(Predictor::slope(Points{}), 0);
    EXPECT_EQ(Predictor::slope(Points{{1, 5}}), 0);
    EXPECT_EQ(Predictor::slope(Points{{2, 5}, {2, 9}}), 0);
    EXPECT_EQ(Predictor::slope(Points{{0, 10}, {2, 4}}), -3);
    EXPECT_DOUBLE_EQ(Predictor::slope(Points{{0, 0}, {1, 2}, {2, 1}, {3, 5}}), 1.4);
}

TEST(PredictorTest, durationIsSaidInRoundWords)
{
    struct Case {
        double days;
        const char* words;
    };
    constexpr Case cases[] = {
        {-3, "less than a day"},    {0.99, "less than a day"},
        {1, "about 1 day"},         {1.49, "about 1 day"},
        {1.5, "about 2 days"},      {13.6, "about 14 days"},
        {14, "about 2 weeks"},      {17.5, "about 3 weeks"},
        {20, "about 3 weeks"},      {59.9, "about 9 weeks"},
        {60, "about 2 months"},     {90, "about 3 months"},
        {729, "about 24 months"},   {730, "more than 2 years"},
        {800, "more than 2 years"}, {std::numeric_limits<double>::infinity(), "more than 2 years"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Predictor::duration(c.days).base(), c.words) << c.days;
}

} // namespace
} // namespace orlen

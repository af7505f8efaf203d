#include "app/Freshness.h"

#include <gtest/gtest.h>

#include <chrono>

namespace orlen {

namespace {

using namespace std::chrono_literals;

constexpr std::int64_t kGigabyte = 1'000'000'000;
constexpr ScanMoment kThen{.time = TimePoint(), .free = 100 * kGigabyte, .total = 500 * kGigabyte};

Freshness later(TimePoint::duration time, std::int64_t freed, std::int64_t total = kThen.total)
{
    ScanMoment then = kThen;
    then.total = total;
    return freshness(then, {.time = then.time + time, .free = then.free + freed, .total = total});
}

} // namespace

TEST(FreshnessTest, resultsAreOldAfterADay)
{
    EXPECT_EQ(later(24h - 1s, 0), Freshness::fresh);
    EXPECT_EQ(later(24h, 0), Freshness::old);
}

TEST(FreshnessTest, aSmallPartOfALargeDiskIsNoGreatChange)
{
    EXPECT_EQ(later(1h, 5 * kGigabyte - 1), Freshness::fresh);
    EXPECT_EQ(later(1h, 5 * kGigabyte), Freshness::diskChanged);
    EXPECT_EQ(later(1h, -5 * kGigabyte), Freshness::diskChanged);
    EXPECT_EQ(later(1h, 2 * kGigabyte - 1, 110 * kGigabyte), Freshness::fresh);
    EXPECT_EQ(later(1h, 2 * kGigabyte, 110 * kGigabyte), Freshness::diskChanged);
    ScanMoment unknown = kThen;
    unknown.free = 0;
    EXPECT_EQ(freshness(kThen, unknown), Freshness::fresh) << "the volume could not be read";
}

TEST(FreshnessTest, anotherSizeOfLargeFilesComesFirst)
{
    EXPECT_EQ(freshness(kThen, {.time = kThen.time + 48h, .largeThreshold = 1}), Freshness::otherThreshold);
}

} // namespace orlen

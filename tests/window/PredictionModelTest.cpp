#include "window/predict/PredictionModel.h"

#include "app/EventLoop.h"
#include "clean/Persist.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace orlen {

namespace {

constexpr std::int64_t kGigabyte = 1'000'000'000;
const TimePoint kNow = std::chrono::system_clock::now();

Snapshot reading(int daysAgo, std::int64_t free, std::map<std::string, std::int64_t> cats)
{
    return {kNow - std::chrono::days(daysAgo), free, 500 * kGigabyte, std::move(cats)};
}

QVariant value(const PredictionModel& model, int row, PredictionModel::Role role)
{
    return model.data(model.index(row), static_cast<int>(role));
}

} // namespace

TEST(PredictionModelTest, showsGrowthAndShrinkingOnOneScale)
{
    const TempHome home;
    (void)Persist::saveSnapshots({
        reading(7, 100 * kGigabyte,
                {{"apps", 9 * kGigabyte}, {"media", 8 * kGigabyte}, {"photos", kGigabyte}}),
        reading(0, 90 * kGigabyte,
                {{"apps", 12 * kGigabyte}, {"media", 7 * kGigabyte}, {"photos", kGigabyte}}),
    });
    AppModel app({.startup = AppModel::Startup::filesOnly});
    PredictionModel model(app);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    using Role = PredictionModel::Role;
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_TRUE(model.hasEnoughData());
    EXPECT_EQ(value(model, 0, Role::label), "Apps");
    EXPECT_EQ(value(model, 0, Role::rate), "+3 GB / week");
    EXPECT_EQ(value(model, 1, Role::rate), "No change");
    EXPECT_EQ(value(model, 2, Role::rate), "\u22121 GB / week");
    EXPECT_NEAR(value(model, 0, Role::start).toDouble(), 0.25, 1e-6);
    EXPECT_NEAR(value(model, 0, Role::extent).toDouble(), 0.75, 1e-6);
    EXPECT_NEAR(value(model, 2, Role::start).toDouble(), 0, 1e-6);
    EXPECT_NEAR(value(model, 2, Role::extent).toDouble(), 0.25, 1e-6);
    EXPECT_TRUE(model.snapshotsText().startsWith("2 snapshots are stored "));
    EXPECT_FALSE(model.curve().known.empty());
}

TEST(PredictionModelTest, drawsNothingFromOneSnapshotAndFollowsTheNext)
{
    const TempHome home;
    (void)Persist::saveSnapshots({reading(3, 100 * kGigabyte, {{"apps", kGigabyte}, {"system", kGigabyte}})});
    AppModel app({.startup = AppModel::Startup::filesOnly});
    PredictionModel model(app);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model.headline(), "Still learning your Mac");
    EXPECT_TRUE(model.snapshotsText().startsWith("1 snapshot are stored "));
    EXPECT_TRUE(model.rowCount() == 0);
    EXPECT_TRUE(model.curve().known.empty());

    app.storage()->refreshBreakdown(Storage::Recording::ifStale);
    ASSERT_TRUE(waitUntil([&] { return app.storage()->snapshots().size() == 2; }));
    EXPECT_TRUE(model.hasEnoughData());
    EXPECT_FALSE(model.rowCount() == 0);
    EXPECT_EQ(model.curve().known.size(), 2U);
}

} // namespace orlen

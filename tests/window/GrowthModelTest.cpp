#include "window/predict/GrowthModel.h"

#include "clean/Persist.h"
#include "support/TempHome.h"
#include "window/lists/PathCode.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace orlen {

namespace {

constexpr std::int64_t kMegabytes = 1'000'000;

QString growthRow(const GrowthModel& model, int row)
{
    const auto text = [&](GrowthModel::Role role) {
        return model.data(model.index(row), static_cast<int>(role)).toString();
    };
    return text(GrowthModel::Role::name) + text(GrowthModel::Role::growth);
}

} // namespace

TEST(GrowthModelTest, comparesTheLastScanWithAnEarlierOne)
{
    const TempHome home;
    const TimePoint now = std::chrono::system_clock::now();
    std::vector<FolderReading> readings;
    for (const int daysAgo : {60, 20, 2, 1})
        readings.push_back({now - std::chrono::days(daysAgo),
                            kMegabytes,
                            {{home.path("Videos"), (1'000 - 10 * daysAgo) * kMegabytes},
                             {"/opt/games", (daysAgo == 60 ? 100 : 400) * kMegabytes}}});
    ASSERT_TRUE(Persist::saveFolderReadings(readings).ok());
    AppModel app({.startup = AppModel::Startup::filesOnly});
    GrowthModel model(app);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(growthRow(model, 0), "Videos+10 MB");
    EXPECT_TRUE(model.sentence().startsWith("Since "));
    model.setProperty("period", GrowthModel::Week);
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(growthRow(model, 0), "Videos+190 MB");
    model.setProperty("period", GrowthModel::Month);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(growthRow(model, 0), "Videos+590 MB");
    EXPECT_EQ(growthRow(model, 1), "games+300 MB");
    const auto code = [&](int row) {
        return model.data(model.index(row), static_cast<int>(GrowthModel::Role::code)).toString();
    };
    EXPECT_EQ(PathCode::path(code(0)), home.path("Videos"));
    EXPECT_TRUE(code(1).isEmpty()) << "the disk map begins at the home folder";

    app.storage()->folders().record(readings.back(), now);
    model.setProperty("period", GrowthModel::LastScan);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(model.sentence().startsWith("No folder has grown much since "));
}

} // namespace orlen

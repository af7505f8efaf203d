#include "window/home/ScanProgressModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

namespace {

AppModel::Options withoutScan()
{
    AppModel::Options options;
    options.startup = AppModel::Startup::filesOnly;
    return options;
}

int count(const ScanProgressModel& model, ScanProgressModel::State state)
{
    int rows = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.data(model.index(row), static_cast<int>(ScanProgressModel::Role::state)) == state)
            ++rows;
    }
    return rows;
}

} // namespace

TEST(ScanProgressModelTest, showsAllStepsBeforeDuringAndAfterAScan)
{
    const TempHome home;
    for (int file = 0; file < 100; ++file)
        home.file("Documents/" + std::to_string(file));
    AppModel app(withoutScan());
    ScanProgressModel model(app);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    constexpr int kSteps = static_cast<int>(kScanSteps);
    EXPECT_EQ(count(model, ScanProgressModel::Pending), kSteps);
    EXPECT_EQ(model.files(), "0");
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EXPECT_EQ(count(model, ScanProgressModel::Done), kSteps);
    EXPECT_GE(model.files().toInt(), 100);
    EXPECT_FALSE(model.current().isEmpty());
    EXPECT_EQ(resets.count(), 0);
    app.results()->startScan();
    EXPECT_EQ(count(model, ScanProgressModel::Pending), kSteps) << "another scan starts afresh";
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
}

TEST(ScanProgressModelTest, saysThatItIsBeingCancelledUntilItIs)
{
    const TempHome home;
    AppModel app(withoutScan());
    ScanProgressModel model(app);
    model.cancel();
    EXPECT_FALSE(model.isCancelling()) << "no scan is running";
    app.results()->startScan();
    model.cancel();
    EXPECT_TRUE(model.isCancelling());
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::idle; }));
    EXPECT_FALSE(model.isCancelling());
    EXPECT_TRUE(app.results()->findings().empty());
}

} // namespace orlen

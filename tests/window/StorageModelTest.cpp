#include "window/home/StorageModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

TEST(StorageModelTest, hasARowForEachCategoryThatTakesSpace)
{
    const TempHome home;
    home.fileOfSize("Pictures/a.jpg", 40'960);
    AppModel app({});
    StorageModel storage(app);
    const QAbstractItemModelTester tester(&storage, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_FALSE(storage.isReady());
    EXPECT_EQ(storage.rowCount(), 0);
    ASSERT_TRUE(waitUntil([&] { return app.storage()->isBreakdownReady(); }));
    EXPECT_TRUE(storage.isReady());
    QStringList labels;
    for (int row = 0; row < storage.rowCount(); ++row)
        labels << storage.data(storage.index(row), static_cast<int>(StorageModel::Role::label)).toString();
    EXPECT_TRUE(labels.contains("Photos")) << qPrintable(labels.join(", "));
    EXPECT_FALSE(labels.contains("Developer"));
    EXPECT_GT(storage.usedFraction(), 0);
    EXPECT_LE(storage.usedFraction(), 1);
}

} // namespace orlen

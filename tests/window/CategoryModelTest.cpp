#include "window/category/CategoryModel.h"

#include "app/EventLoop.h"
#include "app/Sizes.h"
#include "support/TempHome.h"
#include "window/home/StorageRing.h"
#include "window/lists/PathCode.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>

namespace orlen {

namespace {

using FolderRole = CategoryFolderModel::Role;

struct CategoryModelTest : testing::Test {
    CategoryModelTest()
    {
        home.fileOfSize("Videos/series/one", 16 * kKiB);
        home.fileOfSize("Videos/film.mkv", 8 * kKiB);
        home.fileOfSize("Music/song", 8 * kKiB);
        home.fileOfSize("projects/work", 32 * kKiB);
        home.fileOfSize(home.outside("system/opt/tool/x"), 4 * kKiB);
        home.file(home.outside("system/usr/bin/apt"));
        home.fileOfSize(home.outside("system/var/cache/apt/archives/a.deb"), 1'024 * kKiB);
    }

    void measure()
    {
        ASSERT_TRUE(waitUntil([&] { return app.storage()->isBreakdownReady(); }));
    }
    [[nodiscard]] bool settles() const
    {
        return waitUntil([&] { return !category.isMeasuring() && !category.isCollecting(); });
    }
    [[nodiscard]] QVariant value(int row, FolderRole role)
    {
        return category.folders()->data(category.folders()->index(row), static_cast<int>(role));
    }
    [[nodiscard]] int rowOf(const QString& name)
    {
        for (int row = 0; row < category.folders()->rowCount(); ++row) {
            if (value(row, FolderRole::name) == name)
                return row;
        }
        return -1;
    }

    const TempHome home;
    AppModel app{{}};
    CategoryModel category{app};
    const QAbstractItemModelTester foldersTester{category.folders(),
                                                 QAbstractItemModelTester::FailureReportingMode::Fatal};
    const QAbstractItemModelTester adviceTester{category.advice(),
                                                QAbstractItemModelTester::FailureReportingMode::Fatal};
};

int orderOf(OrlenCategory category)
{
    return static_cast<int>(category);
}

} // namespace

TEST_F(CategoryModelTest, showsTheFoldersOfACategoryWithWhatIsInThem)
{
    measure();
    category.show(99);
    EXPECT_FALSE(category.isOpen());
    category.show(orderOf(OrlenCategory::media));
    EXPECT_TRUE(category.isOpen());
    EXPECT_TRUE(category.summary().startsWith("33 KB · ")) << qPrintable(category.summary());
    ASSERT_EQ(category.folders()->rowCount(), 2);
    EXPECT_EQ(value(0, FolderRole::name), "Videos");
    EXPECT_EQ(value(0, FolderRole::place), "~/Videos");
    EXPECT_EQ(value(0, FolderRole::shareText), "75%");
    EXPECT_EQ(value(0, FolderRole::items).toString().replace(QChar(0xA0), ' '),
              "series 16 KB  ·  film.mkv 8 KB");
    ASSERT_TRUE(settles());
    EXPECT_EQ(category.advice()->rowCount(), 0);
}

TEST_F(CategoryModelTest, systemIsMeasuredWhenItIsOpenedAndComesWithAdvice)
{
    measure();
    category.show(orderOf(OrlenCategory::system));
    EXPECT_TRUE(category.isMeasuring());
    ASSERT_TRUE(settles());
    EXPECT_GE(rowOf("The rest of your home folder"), 0);
    EXPECT_GE(rowOf("var"), 0);
    const int last = category.folders()->rowCount() - 1;
    EXPECT_EQ(value(last, FolderRole::name), "Not visible to Orlen");
    EXPECT_EQ(value(last, FolderRole::isSeen), false);
    ASSERT_EQ(category.advice()->rowCount(), 1);
    const QModelIndex advice = category.advice()->index(0);
    EXPECT_EQ(category.advice()->data(advice, static_cast<int>(AdviceModel::Role::size)), "1 MB");
    category.advice()->copy(0);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "sudo apt clean");
    category.advice()->copy(7);

    category.show(orderOf(OrlenCategory::media));
    EXPECT_EQ(category.folders()->rowCount(), 2) << "nothing of the category before";
    EXPECT_EQ(category.advice()->rowCount(), 0);
}

TEST_F(CategoryModelTest, onlyFoldersOfTheHomeFolderLeadToTheDiskMap)
{
    measure();
    const QSignalSpy chosen(&category, &CategoryModel::folderChosen);
    category.show(orderOf(OrlenCategory::apps));
    ASSERT_EQ(category.folders()->rowCount(), 1);
    EXPECT_EQ(value(0, FolderRole::isInHome), false);
    category.openFolder(0);
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_TRUE(category.isOpen());
    category.show(orderOf(OrlenCategory::media));
    category.openFolder(8);
    EXPECT_TRUE(chosen.isEmpty());
    category.openFolder(0);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(PathCode::path(chosen.first().first().toString()), home.path("Videos"));
    EXPECT_FALSE(category.isOpen());
}

TEST_F(CategoryModelTest, theRingTellsWhereACategoryIsDrawn)
{
    StorageModel storage(app);
    StorageRing ring;
    ring.setSize({200, 200});
    ring.setStorage(&storage);
    EXPECT_EQ(ring.neighbour(-1, 1), -1) << "nothing is drawn yet";
    StorageBreakdown breakdown;
    breakdown.total = 100;
    breakdown.free = 40;
    breakdown.cats = {{OrlenCategory::photos, 25}, {OrlenCategory::system, 35}};
    app.storage()->setBreakdown(breakdown);
    ring.setProgress(1);

    const int photos = orderOf(OrlenCategory::photos);
    const int system = orderOf(OrlenCategory::system);
    EXPECT_EQ(ring.categoryAt({164, 36}), photos) << "the upper right";
    EXPECT_EQ(ring.categoryAt({164, 164}), system);
    EXPECT_EQ(ring.categoryAt({36, 36}), -1) << "free space";
    EXPECT_EQ(ring.categoryAt({100, 100}), -1) << "the middle";
    EXPECT_EQ(ring.categoryAt({0, 0}), -1);
    EXPECT_EQ(ring.neighbour(-1, 1), photos);
    EXPECT_EQ(ring.neighbour(-1, -1), system);
    EXPECT_EQ(ring.neighbour(photos, 1), system);
    EXPECT_EQ(ring.neighbour(system, 1), photos);
    EXPECT_EQ(ring.neighbour(photos, -1), system);
}

} // namespace orlen

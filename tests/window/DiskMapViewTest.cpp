#include "window/diskmap/DiskMapView.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QSignalSpy>

namespace orlen {

namespace {

class DiskMapViewTest : public testing::Test {
protected:
    DiskMapViewTest()
    {
        home.fileOfSize("Videos/film.mkv", 409'600);
        home.fileOfSize("Videos/Old/clip.mkv", 204'800);
        home.fileOfSize("Music/song.ogg", 204'800);
        home.fileOfSize("note.txt", 40'960);
        home.folder("Music/none");
        view.setViewWidth(412);
        view.setViewHeight(212);
    }

    [[nodiscard]] QVariant value(int row, DiskMapView::Role role) const
    {
        return view.data(view.index(row), static_cast<int>(role));
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < view.rowCount(); ++row)
            result << value(row, DiskMapView::Role::name).toString();
        return result;
    }
    [[nodiscard]] bool settles() const
    {
        return waitUntil([&] { return !view.isLoading(); });
    }

    const TempHome home;
    AppModel app{{AppModel::Startup::filesOnly, AppModel::Access::writer, {}}};
    DiskMapView view{app};
    const QAbstractItemModelTester tester{&view, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(DiskMapViewTest, fillsTheMapWithTilesThatLeaveAGap)
{
    using Role = DiskMapView::Role;
    EXPECT_FALSE(view.isEmpty()) << "nothing has been measured yet";
    view.load();
    ASSERT_TRUE(settles());
    ASSERT_EQ(names(), (QStringList{"Videos", "Music", "note.txt"}));
    EXPECT_EQ(value(0, Role::kind), static_cast<int>(DiskMapView::Folder));
    EXPECT_EQ(value(2, Role::kind), static_cast<int>(DiskMapView::File));
    EXPECT_TRUE(value(0, Role::spoken).toString().endsWith(", folder"));
    const QRectF all(0, 0, 400 - 2, 200 - 2);
    for (int row = 0; row < 3; ++row) {
        const QRectF area = value(row, Role::area).toRectF();
        EXPECT_TRUE(all.contains(area)) << row;
        EXPECT_EQ(area.toRect(), area) << "whole points";
        for (int other = 0; other < row; ++other)
            EXPECT_FALSE(value(other, Role::area).toRectF().adjusted(0, 0, 1, 1).intersects(area));
    }
    view.setViewWidth(13);
    EXPECT_TRUE(value(0, Role::area).toRectF().isEmpty()) << "too narrow for a map";
}

TEST_F(DiskMapViewTest, goesInByClickAndComesBackToTheFolderItLeft)
{
    view.load();
    ASSERT_TRUE(settles());
    const QPointF music = value(1, DiskMapView::Role::area).toRectF().center();
    view.gestures()->movePointer(music);
    EXPECT_EQ(view.hoverRow(), 1);
    const QSignalSpy arrivals(&view, &DiskMapView::arrived);
    view.gestures()->click(music);
    EXPECT_EQ(view.zoomOrigin(), music);
    EXPECT_EQ(view.hoverRow(), -1) << "what is being left does not answer";
    EXPECT_EQ(view.rowCount(), 3) << "but is still there to be seen leaving";
    view.open(0);
    view.step(DiskMapView::Right);
    ASSERT_TRUE(settles());
    EXPECT_EQ(names(), QStringList{"song.ogg"}) << "the click, not what came while it was measured";
    EXPECT_EQ(view.folderName(), "Music");
    EXPECT_EQ(arrivals.last().first(), 1);

    view.open(0);
    EXPECT_FALSE(view.isLoading()) << "a file cannot be entered";
    view.up();
    ASSERT_TRUE(settles());
    EXPECT_EQ(arrivals.last().first(), -1);
    EXPECT_EQ(view.currentRow(), 1);
    view.up();
    EXPECT_FALSE(view.isLoading()) << "already at the start";
    view.goTo(5);
    EXPECT_FALSE(view.isLoading()) << "no such step";
}

TEST_F(DiskMapViewTest, keepsRowsOfWhatRemainsWhenMeasuredAgain)
{
    view.load();
    ASSERT_TRUE(settles());
    view.setCurrentRow(2);
    home.fileOfSize("note.txt", 4'096'000);
    home.fileOfSize("new.bin", 8'192);
    QSignalSpy inserted(&view, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removed(&view, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy moved(&view, &QAbstractItemModel::rowsMoved);
    view.load();
    ASSERT_TRUE(settles());
    EXPECT_EQ(names(), (QStringList{"note.txt", "Videos", "Music", "new.bin"}));
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_EQ(removed.size(), 0);
    EXPECT_EQ(moved.size(), 1);
    EXPECT_EQ(view.currentRow(), 0) << "still the note";
}

TEST_F(DiskMapViewTest, saysThatAFolderShowsNothing)
{
    view.load();
    ASSERT_TRUE(settles());
    TempHome::setMode(home.path("Music"), 0);
    view.open(1);
    ASSERT_TRUE(settles());
    EXPECT_TRUE(view.isEmpty());
    EXPECT_TRUE(view.isLocked());
    EXPECT_EQ(view.currentRow(), -1);
    view.step(DiskMapView::Down);
    view.open(-1);
    EXPECT_EQ(view.describe(-1), "Music\u00a0· 0 bytes");

    TempHome::setMode(home.path("Music"), 0700);
    QFile::remove(QString::fromStdString(home.path("Music/song.ogg")));
    QDir().rmdir(QString::fromStdString(home.path("Music/none")));
    view.load();
    ASSERT_TRUE(settles());
    EXPECT_TRUE(view.isEmpty());
    EXPECT_FALSE(view.isLocked());
}

TEST_F(DiskMapViewTest, whatIsPressedMayMoveAsItWasMeasured)
{
    view.load();
    ASSERT_TRUE(settles());
    view.gestures()->movePointer(value(0, DiskMapView::Role::area).toRectF().center());
    const int pressed = view.rowAt(value(1, DiskMapView::Role::area).toRectF().center());
    EXPECT_EQ(pressed, 1) << "not what was hovered";
    const std::string music = home.path("Music");
    const auto subject = view.subject(pressed);
    ASSERT_TRUE(subject && subject->entry);
    EXPECT_EQ(subject->entry->path, music);
    EXPECT_EQ(subject->entry->size, 204'800);
    EXPECT_EQ(subject->entry->stamp, FileStamp::of(statusOf(music).value()));
    EXPECT_EQ(subject->entry->modified, statusOf(home.path("Music/song.ogg")).value().modified);
}

TEST_F(DiskMapViewTest, measuresAnewAfterACleanUpOnceItIsSeen)
{
    view.load();
    ASSERT_TRUE(settles());
    CleanPlan plan;
    plan.sections.push_back({"map", {}, {}, {*view.subject(2)->entry}, {}});
    app.cleanUps()->confirm(plan);
    ASSERT_TRUE(waitUntil([&] { return app.cleanUps()->cleaning()->finished; }));
    EXPECT_FALSE(view.isLoading());
    view.setShown(true);
    ASSERT_TRUE(view.isLoading());
    ASSERT_TRUE(settles());
    EXPECT_FALSE(names().contains("note.txt"));
    ASSERT_EQ(app.cleanUps()->history().size(), 1);
    app.cleanUps()->startRestore(app.cleanUps()->history().front());
    ASSERT_TRUE(waitUntil([&] { return names().contains("note.txt"); }));
}

TEST_F(DiskMapViewTest, foldersThatCouldNotBeReadAreShown)
{
    home.folder("Locked/in");
    home.folder("Music/\xff");
    for (const char* path : {"Locked", "Music/\xff"})
        TempHome::setMode(home.path(path), 0);
    view.load();
    ASSERT_TRUE(settles());
    EXPECT_EQ(names(), (QStringList{"Videos", "Music", "note.txt", "Locked"}));
    EXPECT_FALSE(value(0, DiskMapView::Role::locked).toBool());
    EXPECT_TRUE(value(3, DiskMapView::Role::unread).toBool());
    EXPECT_FALSE(value(3, DiskMapView::Role::area).toRectF().isEmpty());
    EXPECT_EQ(value(3, DiskMapView::Role::spoken), "Locked, folder, could not be read");
    view.open(1);
    ASSERT_TRUE(settles());
    EXPECT_EQ(names(), (QStringList{"song.ogg", "\uFFFD"}));
    EXPECT_TRUE(value(1, DiskMapView::Role::locked).toBool());
    for (const char* path : {"Locked", "Music/\xff"})
        TempHome::setMode(home.path(path), 0700);
}

TEST_F(DiskMapViewTest, aDroppedFolderIsShown)
{
    view.load();
    ASSERT_TRUE(settles());
    EXPECT_FALSE(view.drop({QUrl("https://example.org/x")}));
    ASSERT_TRUE(view.drop({QUrl::fromLocalFile(QString::fromStdString(home.path("Music")))}));
    ASSERT_TRUE(settles());
    EXPECT_EQ(view.folderName(), "Music");
    EXPECT_EQ(view.place(), 0) << "below the home folder";
    const std::string outside = home.outside("elsewhere");
    ASSERT_TRUE(view.drop({QUrl::fromLocalFile(QString::fromStdString(outside))}));
    ASSERT_TRUE(settles());
    EXPECT_EQ(view.folderName().toStdString(), outside);
    EXPECT_EQ(view.place(), view.places().size() - 1);
    view.startAt(0);
    ASSERT_TRUE(settles());
    EXPECT_EQ(names().front(), "Videos");
}

TEST_F(DiskMapViewTest, takesPinchesAndTheWheelAlike)
{
    view.load();
    ASSERT_TRUE(settles());
    view.gestures()->movePointer(value(0, DiskMapView::Role::area).toRectF().center());
    view.gestures()->pinch(1.2);
    view.gestures()->pinch(1.34);
    EXPECT_FALSE(view.isLoading());
    view.gestures()->pinch(1.36);
    ASSERT_TRUE(view.isLoading());
    ASSERT_TRUE(settles());
    EXPECT_EQ(view.folderName(), "Videos");
    view.gestures()->pinch(1);
    view.gestures()->turnWheel(-120);
    EXPECT_FALSE(view.isLoading());
    view.gestures()->turnWheel(-120);
    ASSERT_TRUE(settles());
    EXPECT_TRUE(view.isAtStart());
}

} // namespace orlen

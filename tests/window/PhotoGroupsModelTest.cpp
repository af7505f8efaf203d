#include "window/photos/PhotoGroupsModel.h"
#include "window/photos/PhotoTilesModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

namespace {

using testing::ElementsAre;

const AppModel::Options kQuickPhotos{AppModel::Startup::filesOnly, AppModel::Access::writer, {}};
const QString kShots = QStringLiteral("screenshots");
const QString kSimilar = QStringLiteral("photoDuplicates");

FileEntry similar(const std::string& path, const std::string& keeper, std::int64_t size)
{
    FileEntry entry{path, size};
    entry.kept = KeptFile{keeper, {}};
    return entry;
}

Finding shots(int count)
{
    std::vector<FileEntry> entries;
    for (int number = 0; number < count; ++number)
        entries.push_back({"/p/shot" + std::to_string(number) + ".png", 1000 - number});
    return {FindingKind::screenshots, std::move(entries)};
}

QVariant at(const QAbstractListModel& model, int row, auto role)
{
    return model.data(model.index(row), static_cast<int>(role));
}

std::vector<std::string> names(const PhotoTilesModel& tiles)
{
    std::vector<std::string> all;
    for (int row = 0; row < tiles.rowCount(); ++row)
        all.push_back(at(tiles, row, PhotoTilesModel::Role::name).toString().toStdString());
    return all;
}

/// The group model over an application model, with a tile model of one group.
struct Stage {
    explicit Stage(std::vector<Finding> findings, const QString& shown)
    {
        groups.setFindings(std::move(findings));
        tiles.setFindingId(shown);
        tiles.setGroups(&groups);
    }

    AppModel app{kQuickPhotos};
    PhotoGroupsModel groups{app};
    PhotoTilesModel tiles{app};
    QAbstractItemModelTester groupsTester{&groups, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester tilesTester{&tiles, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST(PhotoGroupsModelTest, aPhotoOfTwoGroupsCountsOnce)
{
    const TempHome home;
    Stage stage({shots(2), Finding(FindingKind::blurry, {{"/p/shot0.png", 1000}})}, kShots);
    stage.groups.toggleAll(kShots);
    EXPECT_TRUE(stage.groups.selectedText().startsWith("2 photos selected"));
    stage.groups.toggleAll(QStringLiteral("blurry"));
    EXPECT_TRUE(stage.groups.selectedText().startsWith("1 photo selected"));
}

TEST(PhotoGroupsModelTest, selectingAllLeavesOutWhatIsTickedAlone)
{
    const TempHome home;
    Finding finding = shots(3);
    finding.items[1].isTickedAlone = true;
    Stage stage({finding}, kShots);
    stage.groups.toggleAll(kShots);
    EXPECT_THAT(stage.app.results()->selection(), ElementsAre("/p/shot0.png", "/p/shot2.png"));
    stage.tiles.toggle(1);
    EXPECT_EQ(stage.app.results()->selection().size(), 3U) << "by itself it can be ticked";
    stage.groups.toggleAll(kShots);
    EXPECT_TRUE(stage.app.results()->selection().empty());
}

TEST(PhotoGroupsModelTest, tellsTheStages)
{
    const TempHome home;
    AppModel app(kQuickPhotos);
    PhotoGroupsModel groups(app);
    EXPECT_EQ(groups.stage(), PhotoGroupsModel::BeforeScan);
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() != Phase::scanning; }));
    EXPECT_EQ(groups.stage(), PhotoGroupsModel::Nothing);
    groups.setFindings({shots(1)});
    EXPECT_EQ(groups.stage(), PhotoGroupsModel::Groups);
}

TEST(PhotoGroupsModelTest, whatAScanLeavesForTheNextOneIsTold)
{
    TempHome home;
    // Quickly looked at, as nothing can be read, which is why none is remembered either.
    const std::string broken(20'001, 'x');
    const auto add = [&](int first, int end) {
        for (int number = first; number < end; ++number)
            home.file("Pictures/" + std::to_string(number) + ".jpg", broken);
    };
    AppModel app(kQuickPhotos);
    const PhotoGroupsModel groups(app);
    const auto scanned = [&] {
        app.results()->startScan();
        EXPECT_TRUE(waitUntil([&] { return app.results()->phase() != Phase::scanning; }));
        return groups.coverage().toStdString();
    };
    add(0, 1'500);
    EXPECT_EQ(scanned(), "");
    add(1'500, 1'502);
    EXPECT_EQ(scanned(), "1,500 of 1,502 photos looked at so far. The next scans look at the rest.");
}

TEST(PhotoGroupsModelTest, theSelectionIsTheApplicationsOwn)
{
    const TempHome home;
    Stage stage({shots(3)}, kShots);
    EXPECT_EQ(stage.groups.selectedText(), "");
    QSignalSpy changed(&stage.tiles, &QAbstractItemModel::dataChanged);
    stage.tiles.toggle(1);
    EXPECT_THAT(stage.app.results()->selection(), ElementsAre("/p/shot1.png"));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(at(stage.tiles, 1, PhotoTilesModel::Role::selected).toBool());
    EXPECT_EQ(at(stage.groups, 0, PhotoGroupsModel::Role::checkState).toInt(), Qt::PartiallyChecked);
    // Another photo of the same size elsewhere leaves the figures as they are, but not the rows.
    stage.app.results()->setSelection({"/p/shot2.png"});
    EXPECT_FALSE(at(stage.tiles, 1, PhotoTilesModel::Role::selected).toBool());
    stage.groups.toggleAll(kShots);
    EXPECT_EQ(stage.app.results()->selection().size(), 3U);
    EXPECT_TRUE(stage.groups.selectedText().startsWith("3 photos selected"));
    stage.groups.toggleAll(kShots);
    EXPECT_TRUE(stage.app.results()->selection().empty());
}

TEST(PhotoGroupsModelTest, aGroupThatIsCleanedAwayIsNoLongerShown)
{
    const TempHome home;
    Stage stage({shots(3), Finding(FindingKind::blurry, {{"/p/b.jpg", 1}})}, kShots);
    stage.groups.setShownGroup(kShots);
    QSignalSpy removed(&stage.groups, &QAbstractItemModel::rowsRemoved);
    stage.groups.setFindings({Finding(FindingKind::blurry, {{"/p/b.jpg", 1}})});
    EXPECT_EQ(removed.size(), 1);
    EXPECT_EQ(stage.groups.shownGroup(), "");
    stage.groups.setShownGroup("memes");
    EXPECT_EQ(stage.groups.shownGroup(), "");
}

TEST(PhotoTilesModelTest, theLimitAndACleanUpMoveRowsWithoutAReset)
{
    const TempHome home;
    Stage stage({shots(6)}, kShots);
    QSignalSpy reset(&stage.tiles, &QAbstractItemModel::modelReset);
    stage.tiles.setLimit(2);
    EXPECT_THAT(names(stage.tiles), ElementsAre("shot0.png", "shot1.png"));
    stage.tiles.setLimit(4);
    EXPECT_EQ(stage.tiles.rowCount(), 4);
    Finding left = shots(6);
    left.items.erase(left.items.begin() + 1, left.items.begin() + 3);
    stage.groups.setFindings({left});
    EXPECT_THAT(names(stage.tiles), ElementsAre("shot0.png", "shot3.png", "shot4.png", "shot5.png"));
    EXPECT_TRUE(reset.isEmpty());
}

TEST(PhotoTilesModelTest, aSetBeginsWithThePhotoThatIsKept)
{
    const TempHome home;
    const std::string keeper = home.file("Pictures/a.jpg");
    Stage stage({Finding(FindingKind::photoDuplicates,
                         {similar(home.path("Pictures/a2.jpg"), keeper, 3),
                          similar(home.path("Pictures/b2.jpg"), home.path("Videos/b.jpg"), 2),
                          similar(home.path("Pictures/a3.jpg"), keeper, 1)})},
                kSimilar);
    EXPECT_THAT(names(stage.tiles), ElementsAre("a.jpg", "a2.jpg", "a3.jpg", "b.jpg", "b2.jpg"));
    const auto joins = [&](int row) {
        return std::pair(at(stage.tiles, row, PhotoTilesModel::Role::joinsPrevious).toBool(),
                         at(stage.tiles, row, PhotoTilesModel::Role::joinsNext).toBool());
    };
    EXPECT_EQ(joins(0), std::pair(false, true));
    EXPECT_EQ(joins(1), std::pair(true, true));
    EXPECT_EQ(joins(2), std::pair(true, false));
    EXPECT_NE(at(stage.tiles, 0, PhotoTilesModel::Role::source).toString(), "");
    stage.tiles.toggle(0);
    EXPECT_TRUE(stage.app.results()->selection().empty()) << "a kept photo cannot be selected";
    stage.tiles.toggle(1);
    EXPECT_THAT(stage.app.results()->selection(), ElementsAre(home.path("Pictures/a2.jpg")));
}

} // namespace orlen

#include "window/photos/CompareModel.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/lists/PathCode.h"
#include "window/preview/PicturePane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const AppModel::Options kQuickPhotos{AppModel::Startup::filesOnly, AppModel::Access::writer, {}};
const QString kSimilar = QStringLiteral("photoDuplicates");

FileEntry similar(const std::string& path, const std::string& keeper, std::int64_t size)
{
    FileEntry entry{path, size};
    entry.kept = KeptFile{keeper, {}};
    return entry;
}

/// Two sets, of six photos and of two, over an application model.
struct CompareModelTest : testing::Test {
    CompareModelTest()
    {
        groups.setFindings(
            {Finding(FindingKind::photoDuplicates,
                     {similar("/p/b.jpg", "/p/a.jpg", 9), similar("/p/c.jpg", "/p/a.jpg", 8),
                      similar("/p/d.jpg", "/p/a.jpg", 7), similar("/p/e.jpg", "/p/a.jpg", 6),
                      similar("/p/f.jpg", "/p/a.jpg", 5), similar("/p/y.jpg", "/p/x.jpg", 4)})});
        sets.setFindingId(kSimilar);
        sets.setGroups(&groups);
    }

    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (int row = 0; row < model.rowCount(); ++row)
            all.push_back(model.data(model.index(row), static_cast<int>(CompareModel::Role::name))
                              .toString()
                              .toStdString());
        return all;
    }
    void select(std::set<std::string> paths) { app.results()->setSelection(std::move(paths)); }

    TempHome home;
    AppModel app{kQuickPhotos};
    PhotoGroupsModel groups{app};
    PhotoSetsModel sets;
    CompareModel model{app};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(CompareModelTest, fourAtATimeAreShownWithTheKeptOneAmongThem)
{
    model.show(&sets, 0, {});
    EXPECT_THAT(names(), ElementsAre("a.jpg", "b.jpg", "c.jpg", "d.jpg"));
    EXPECT_EQ(model.current(), 1);
    EXPECT_EQ(model.partner(), 0);
    EXPECT_TRUE(model.hasMore());
    model.showMore();
    EXPECT_THAT(names(), ElementsAre("a.jpg", "e.jpg", "f.jpg"));
    model.showMore();
    EXPECT_THAT(names(), ElementsAre("a.jpg", "b.jpg", "c.jpg", "d.jpg"));
    model.show(&sets, 0, PathCode::of("/p/f.jpg"));
    EXPECT_THAT(names(), ElementsAre("a.jpg", "e.jpg", "f.jpg"));
    EXPECT_EQ(model.current(), 2);
}

TEST_F(CompareModelTest, stepsStayWithinTheSets)
{
    model.show(&sets, 0, {});
    EXPECT_FALSE(model.hasPrevious());
    model.step(-1);
    EXPECT_EQ(model.title(), "Set 1 of 2");
    model.step(1);
    EXPECT_THAT(names(), ElementsAre("x.jpg", "y.jpg"));
    EXPECT_FALSE(model.hasNext());
    model.step(1);
    EXPECT_EQ(model.title(), "Set 2 of 2");
}

TEST_F(CompareModelTest, keepingAllDeselectsTheWholeSetOnly)
{
    select({"/p/b.jpg", "/p/f.jpg", "/p/y.jpg"});
    model.show(&sets, 0, {});
    EXPECT_TRUE(model.isAnySelected());
    model.keepAll();
    EXPECT_THAT(app.results()->selection(), ElementsAre("/p/y.jpg"));
    EXPECT_FALSE(model.isAnySelected());
}

TEST_F(CompareModelTest, theLastPhotoOfASetCannotBeSelected)
{
    model.show(&sets, 1, {});
    model.toggle(0);
    EXPECT_THAT(app.results()->selection(), IsEmpty()) << "it is kept";
    // Selected in another finding, where it is large.
    select({"/p/x.jpg"});
    model.toggle(1);
    EXPECT_THAT(app.results()->selection(), ElementsAre("/p/x.jpg"));
    groups.toggleAll(kSimilar);
    EXPECT_FALSE(app.results()->selection().contains("/p/y.jpg"));
    EXPECT_TRUE(app.results()->selection().contains("/p/b.jpg"));
    select({});
    model.toggle(1);
    EXPECT_THAT(app.results()->selection(), ElementsAre("/p/y.jpg"));
}

TEST_F(CompareModelTest, photosKeepTheirPlacesWhenAnotherOneIsKept)
{
    model.show(&sets, 1, {});
    groups.setFindings({Finding(FindingKind::photoDuplicates, {similar("/p/x.jpg", "/p/y.jpg", 4)})});
    EXPECT_THAT(names(), ElementsAre("x.jpg", "y.jpg"));
    const auto isKept = [&](int row) {
        return model.data(model.index(row), static_cast<int>(CompareModel::Role::kept)).toBool();
    };
    EXPECT_FALSE(isKept(0));
    EXPECT_TRUE(isKept(1));
    groups.setFindings({Finding(FindingKind::photoDuplicates, {similar("/p/v.jpg", "/p/w.jpg", 4)})});
    EXPECT_FALSE(model.isShown()) << "the set is gone";
}

TEST(LinkedZoomTest, whatIsUnderThePointerStaysThereUpToTheEdges)
{
    LinkedZoom zoom;
    zoom.setMost(10);
    zoom.zoomTo(2, {0.5, 0.25});
    EXPECT_DOUBLE_EQ(zoom.centre().y(), 0.375);
    zoom.panBy(1, -1);
    EXPECT_EQ(zoom.centre(), QPointF(0.75, 0.25)) << "no further than the edges";
    zoom.zoomBy(100, {1, 0});
    EXPECT_DOUBLE_EQ(zoom.zoom(), 10);
    zoom.zoomBy(0.001, {0, 0});
    EXPECT_TRUE(zoom.isFitted());
    EXPECT_EQ(zoom.centre(), QPointF(0.5, 0.5));
}

TEST(PicturePaneTest, onlyWhatCanBeSeenIsReadAndOnlyInNeededDetail)
{
    LinkedZoom zoom;
    zoom.setMost(100);
    PicturePane pane;
    pane.setPhoto(PathCode::of("/p/a.jpg"));
    pane.setZoom(&zoom);
    pane.setSize({300, 300});
    EXPECT_TRUE(pane.place().isEmpty()) << "its pixels are not known";
    pane.setPixels({6000, 3000});
    EXPECT_EQ(pane.place(), QRectF(0, 75, 300, 150));
    EXPECT_DOUBLE_EQ(pane.actualZoom(), 20);
    EXPECT_EQ(pane.partAt({150, 150}), QPointF(0.5, 0.5));
    EXPECT_EQ(pane.detail(), "");

    zoom.zoomMiddleTo(pane.actualZoom());
    ASSERT_TRUE(waitUntil([&] { return !pane.detail().isEmpty(); }));
    // 300 pixels, and a quarter of that on each side.
    EXPECT_EQ(pane.detailSize(), QSizeF(450, 450));
    EXPECT_TRUE(pane.detail().endsWith("/part/2775/1275/450/450")) << pane.detail().toStdString();
    EXPECT_EQ(pane.detailPlace(), QRectF(-75, -75, 450, 450));

    zoom.zoomMiddleTo(2);
    ASSERT_TRUE(waitUntil([&] { return pane.detail().contains("/part/750/"); }));
    EXPECT_LE(pane.detailSize().width(), 500) << "not all of its 4,500 pixels";
    zoom.fit();
    EXPECT_TRUE(waitUntil([&] { return pane.detail().isEmpty(); }));
}

} // namespace orlen

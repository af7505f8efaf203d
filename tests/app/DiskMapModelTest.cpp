#include "app/DiskMapModel.h"

#include "app/EventLoop.h"
#include "app/Sizes.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

constexpr Treemap::Size kView{112, 112};
constexpr Treemap::Point kFirst{10, 10}; ///< in the first of two nodes, which takes three quarters
constexpr Treemap::Point kSecond{95, 95};

using testing::ElementsAre;
using testing::IsEmpty;

/// "~/outer/inner/leaf" and a file beside "outer" and one beside "inner", each a quarter of what it lies in.
struct MappedHome : TempHome {
    MappedHome()
    {
        fileOfSize("outer/inner/leaf", 72 * kKiB);
        fileOfSize("outer/beside", 24 * kKiB);
        fileOfSize("beside", 32 * kKiB);
    }
};

std::vector<std::string> names(const DiskMapModel& model)
{
    std::vector<std::string> all;
    all.reserve(model.nodes().size());
    for (const TreeNode& node : model.nodes())
        all.push_back(node.name);
    return all;
}

void finishLoad(const DiskMapModel& model)
{
    ASSERT_TRUE(model.isLoading());
    ASSERT_TRUE(waitUntil([&] { return !model.isLoading(); }));
}

} // namespace

TEST(DiskMapModelTest, beginsAtTheHomeFolderAndShowsItOnceLoaded)
{
    const MappedHome home;
    DiskMapModel model;
    EXPECT_THAT(model.stack(), ElementsAre(home.path()));
    EXPECT_THAT(model.nodes(), IsEmpty());
    EXPECT_FALSE(model.isLoading());
    model.up();
    EXPECT_FALSE(model.isLoading());
    model.load();
    finishLoad(model);
    EXPECT_THAT(names(model), ElementsAre("outer", "beside"));
}

TEST(DiskMapModelTest, theWayGoesDownThroughFoldersAndBackUp)
{
    const MappedHome home;
    DiskMapModel model;
    model.load();
    finishLoad(model);
    model.zoomInto(1); // a file
    model.zoomInto(2); // nothing
    EXPECT_FALSE(model.isLoading());
    model.click(kSecond, kView);
    EXPECT_FALSE(model.isLoading());

    model.click(kFirst, kView);
    EXPECT_THAT(model.nodes(), IsEmpty());
    finishLoad(model);
    EXPECT_THAT(names(model), ElementsAre("inner", "beside"));
    model.zoomInto(0);
    finishLoad(model);
    EXPECT_THAT(model.stack(), ElementsAre(home.path(), home.path("outer"), home.path("outer/inner")));
    EXPECT_THAT(names(model), ElementsAre("leaf"));

    model.up();
    finishLoad(model);
    EXPECT_THAT(names(model), ElementsAre("inner", "beside"));
    model.goTo(0);
    finishLoad(model);
    EXPECT_THAT(model.stack(), ElementsAre(home.path()));
    EXPECT_DEATH(model.goTo(1), "beyond");
}

TEST(DiskMapModelTest, theGroupedNodeIsNotEntered)
{
    const TempHome home;
    for (int number = 0; number < 61; ++number)
        home.fileOfSize(std::to_string(number), 4 * kKiB);
    DiskMapModel model;
    model.load();
    finishLoad(model);
    EXPECT_EQ(names(model).back(), "1 smaller items");
    model.zoomInto(60);
    EXPECT_FALSE(model.isLoading());
}

TEST(DiskMapModelTest, onlyTheLatestLoadIsShown)
{
    const MappedHome home;
    DiskMapModel model;
    model.load();
    finishLoad(model);
    std::vector<std::vector<std::string>> shown;
    QObject::connect(&model, &DiskMapModel::nodesChanged, [&] { shown.push_back(names(model)); });
    model.zoomInto(0);
    for (int i = 0; i < 20; ++i)
        model.load();
    model.up();
    finishLoad(model);
    // Whatever the older loads still have to say arrives now, and is dropped.
    DiskMapModel other;
    other.load();
    finishLoad(other);
    EXPECT_THAT(shown, ElementsAre(IsEmpty(), ElementsAre("outer", "beside")));
    EXPECT_FALSE(model.isLoading());
}

TEST(DiskMapModelTest, aListenerMayGoOnAtOnce)
{
    const MappedHome home;
    DiskMapModel model;
    QObject::connect(&model, &DiskMapModel::nodesChanged, [&] {
        if (!model.nodes().empty())
            model.zoomInto(0);
    });
    model.load();
    ASSERT_TRUE(waitUntil([&] { return !model.isLoading(); }));
    EXPECT_EQ(model.current(), home.path("outer/inner"));
    EXPECT_THAT(names(model), ElementsAre("leaf"));
}

TEST(DiskMapModelTest, hoverFollowsThePointerAndTheNodes)
{
    const MappedHome home;
    DiskMapModel model;
    int changes = 0;
    QObject::connect(&model, &DiskMapModel::hoverChanged, [&] { ++changes; });
    model.movePointer(kSecond, kView);
    EXPECT_EQ(model.hoveredNode(), nullptr);
    model.load();
    finishLoad(model);
    EXPECT_EQ(model.hover(), 1U);
    model.movePointer(kSecond, kView);
    EXPECT_EQ(changes, 1);
    model.movePointer(kFirst, kView);
    EXPECT_EQ(model.hoveredNode()->path, home.path("outer"));
    model.load();
    EXPECT_EQ(model.hover(), std::nullopt);
    finishLoad(model);
    EXPECT_EQ(model.hover(), 0U);
    model.removePointer();
    EXPECT_EQ(model.hover(), std::nullopt);
}

TEST(DiskMapModelTest, aPinchAddsUpUntilItIsFarEnough)
{
    const MappedHome home;
    DiskMapModel model;
    model.load();
    finishLoad(model);
    model.movePointer(kFirst, kView);
    model.magnify(0.35);
    EXPECT_FALSE(model.isLoading());
    model.magnify(0.01);
    finishLoad(model);
    EXPECT_EQ(model.current(), home.path("outer"));
    model.magnify(-0.2);
    model.magnify(-0.15);
    EXPECT_EQ(model.current(), home.path("outer"));
    model.magnify(-0.01);
    finishLoad(model);
    EXPECT_EQ(model.current(), home.path());

    // Over nothing the pinch is used up all the same.
    model.removePointer();
    model.magnify(0.4);
    model.movePointer(kFirst, kView);
    model.magnify(0.3);
    EXPECT_FALSE(model.isLoading());
}

TEST(DiskMapModelTest, aModelMayGoAwayWhileItMeasures)
{
    const MappedHome home;
    int changes = 0;
    {
        DiskMapModel model;
        model.load();
        QObject::connect(&model, &DiskMapModel::loadingChanged, [&] { ++changes; });
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 0);
}

TEST(DiskMapModelTest, showsAFolderBelowTheStartAsIfZoomedInto)
{
    const MappedHome home;
    DiskMapModel model;
    model.show(home.outside());
    model.show(home.outside("homeless"));
    EXPECT_FALSE(model.isLoading()) << "not below the start folder";
    model.show(home.path("outer/inner"));
    finishLoad(model);
    EXPECT_THAT(model.stack(), ElementsAre(home.path(), home.path("outer"), home.path("outer/inner")));
    EXPECT_THAT(names(model), ElementsAre("leaf"));
    model.up();
    finishLoad(model);
    model.show(home.path());
    finishLoad(model);
    EXPECT_THAT(model.stack(), ElementsAre(home.path()));
}

TEST(DiskMapModelTest, startsElsewhereAndShowsTheHomeFolderFromThere)
{
    const MappedHome home;
    DiskMapModel model;
    model.startAt(home.path("outer/inner"));
    finishLoad(model);
    EXPECT_THAT(model.stack(), ElementsAre(home.path("outer/inner")));
    EXPECT_EQ(model.places().front(), home.path());
    model.up();
    EXPECT_FALSE(model.isLoading());
    model.show(home.path("outer"));
    finishLoad(model);
    EXPECT_THAT(model.stack(), ElementsAre(home.path(), home.path("outer")));
}

} // namespace orlen

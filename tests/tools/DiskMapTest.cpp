#include "tools/DiskMap.h"

#include "scan/HomeWalk.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace orlen {

namespace {

constexpr std::int64_t kKiB = 1024;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The children without what depends on the moment they were made.
std::vector<TreeNode> childrenOf(const std::string& folder)
{
    std::vector<TreeNode> nodes = DiskMap::children(folder);
    for (TreeNode& node : nodes) {
        EXPECT_EQ(node.stamp.has_value(), !node.isOther) << node.name;
        node.stamp.reset();
        node.newest.reset();
    }
    return nodes;
}

TreeNode unread(TreeNode node, TreeNode::Reading reading)
{
    node.reading = reading;
    return node;
}

std::string numbered(int number)
{
    return "file" + std::to_string(1000 + number);
}

} // namespace

TEST(DiskMapTest, childrenAreMeasuredWholeAndLargestFirst)
{
    const TempHome home;
    home.fileOfSize("map/folder/deep/er/a", 40 * kKiB);
    home.fileOfSize("map/folder/b", 8 * kKiB);
    home.fileOfSize("map/file", 44 * kKiB);
    home.fileOfSize("map/.hidden/c", 20 * kKiB);
    home.file("map/empty", "");
    home.folder("map/nothing/in it");
    home.fileOfSize("elsewhere/d", 400 * kKiB);
    home.link("map/link to a file", home.path("elsewhere/d"));
    home.link("map/link to a folder", home.path("elsewhere"));
    home.link("map/folder/link", home.path("elsewhere"));
    home.fileOfSize("map/denied/e", 4 * kKiB);
    TempHome::setMode(home.path("map/denied"), 0);

    const std::string map = home.path("map");
    EXPECT_THAT(childrenOf(map),
                ElementsAre(TreeNode{"folder", map + "/folder", 48 * kKiB, true, false},
                            TreeNode{"file", map + "/file", 44 * kKiB, false, false},
                            TreeNode{".hidden", map + "/.hidden", 20 * kKiB, true, false},
                            unread({"denied", map + "/denied", 0, true, false}, TreeNode::Reading::none)));
    TempHome::setMode(home.path("map/denied"), 0700);
}

TEST(DiskMapTest, aFileWithSeveralNamesCountsOnceForTheFirstChild)
{
    const TempHome home;
    home.fileOfSize("map/store/linked", 40 * kKiB);
    home.fileOfSize("map/store/own", 8 * kKiB);
    home.folder("map/project");
    for (const char* name : {"map/project/linked", "map/store/again", "map/zfile"})
        ASSERT_EQ(::link(home.path("map/store/linked").c_str(), home.path(name).c_str()), 0);
    const std::string map = home.path("map");
    EXPECT_THAT(childrenOf(map), ElementsAre(TreeNode{"project", map + "/project", 40 * kKiB, true, false},
                                             TreeNode{"store", map + "/store", 8 * kKiB, true, false}));
}

TEST(DiskMapTest, beyondSixtyTheSmallerOnesAreGrouped)
{
    for (const int count : {59, 60, 61, 74}) {
        SCOPED_TRACE(count);
        const TempHome home;
        home.folder("map");
        for (int i = 0; i < count; ++i)
            home.fileOfSize("map/" + numbered(i), kKiB * (i < 60 ? 8 : 4));
        const std::vector<TreeNode> nodes = childrenOf(home.path("map"));
        ASSERT_THAT(nodes, SizeIs(std::min(count, 61)));
        for (int i = 0; i < std::min(count, 60); ++i)
            EXPECT_EQ(nodes[static_cast<std::size_t>(i)].name, numbered(i));
        if (count > 60) {
            const std::string name = std::to_string(count - 60) + " smaller items";
            EXPECT_EQ(nodes.back(),
                      (TreeNode{name, home.path("map"), kKiB * 4 * (count - 60), false, true, count - 60}));
        }
    }
}

TEST(DiskMapTest, namesThatAreNotUtf8AreShownButNotInADocument)
{
    const TempHome home;
    home.fileOfSize("map/\xff\xfe/inside", 80 * kKiB);
    home.fileOfSize("map/caf\xe9", 8 * kKiB);
    home.fileOfSize("map/café", 4 * kKiB);
    home.fileOfSize("map/outer/\xff", 12 * kKiB);
    const std::string map = home.path("map");
    const TreeNode outer{"outer", map + "/outer", 12 * kKiB, true, false};
    const TreeNode cafe{"café", map + "/café", 4 * kKiB, false, false};
    const std::vector<TreeNode> nodes = childrenOf(map);
    EXPECT_THAT(nodes, ElementsAre(TreeNode{"\xff\xfe", map + "/\xff\xfe", 80 * kKiB, true, false}, outer,
                                   TreeNode{"caf\xe9", map + "/caf\xe9", 8 * kKiB, false, false}, cafe));
    EXPECT_THAT(DiskMap::nameable(nodes, map),
                ElementsAre(outer, cafe, TreeNode{"2 smaller items", map, 88 * kKiB, false, true, 2}));
}

TEST(DiskMapTest, whatCouldNotBeReadIsMarkedOnTheChildItIsIn)
{
    const TempHome home;
    home.fileOfSize("map/partly/x", 8 * kKiB);
    for (const char* path : {"map/partly/a/denied", "map/denied", "map/\xff"})
        TempHome::setMode(home.folder(path), 0);
    home.folder("map/empty");
    std::vector<std::pair<std::string, TreeNode::Reading>> readings;
    for (const TreeNode& node : DiskMap::children(home.path("map")))
        readings.emplace_back(node.name, node.reading);
    using enum TreeNode::Reading;
    EXPECT_THAT(readings,
                ElementsAre(std::pair("partly", partly), std::pair("denied", none), std::pair("\xff", none)));
    for (const char* path : {"map/partly/a/denied", "map/denied", "map/\xff"})
        TempHome::setMode(home.path(path), 0700);
}

TEST(DiskMapTest, unreadFoldersAreShownAmongManyOthers)
{
    const TempHome home;
    for (int i = 0; i < 70; ++i)
        home.fileOfSize("map/" + numbered(i), 4 * kKiB);
    TempHome::setMode(home.folder("map/denied"), 0);
    const std::vector<TreeNode> nodes = DiskMap::children(home.path("map"));
    ASSERT_THAT(nodes, SizeIs(61));
    EXPECT_EQ(nodes[58].name, numbered(58));
    EXPECT_EQ(nodes[59].name, "denied");
    EXPECT_EQ(nodes[60].smaller, 11);
    TempHome::setMode(home.path("map/denied"), 0700);
}

TEST(DiskMapTest, whatIsNoReadableFolderHasNoChildren)
{
    const TempHome home;
    home.fileOfSize("denied/x", 4 * kKiB);
    TempHome::setMode(home.path("denied"), 0);
    home.link("dangling", home.path("missing"));
    for (const std::string& path : {home.path("missing"), home.fileOfSize("file", 4 * kKiB),
                                    home.folder("empty"), home.path("denied"), home.path("dangling")}) {
        SCOPED_TRACE(path);
        EXPECT_THAT(DiskMap::children(path), IsEmpty());
    }
    TempHome::setMode(home.path("denied"), 0700);
}

TEST(DiskMapTest, theFolderItselfMayBeALink)
{
    const TempHome home;
    home.fileOfSize("real/x", 4 * kKiB);
    const std::string link = home.link("link", home.path("real"));
    EXPECT_THAT(childrenOf(link), ElementsAre(TreeNode{"x", link + "/x", 4 * kKiB, false, false}));
}

TEST(DiskMapTest, aWideFolderLosesNothing)
{
    const TempHome home;
    for (int i = 0; i < 3000; ++i) {
        const std::string name = "map/" + std::to_string(i);
        home.fileOfSize(i % 3 == 0 ? name + "/a/b" : name, kKiB * 4 * (i % 2 + 1));
    }
    std::int64_t sum = 0;
    for (const TreeNode& node : DiskMap::children(home.path("map")))
        sum += node.size;
    EXPECT_EQ(sum, kKiB * 6 * 3000);
    EXPECT_EQ(DiskMap::children(home.path("map")).back().name, "2940 smaller items");
}

TEST(DiskMapTest, agreesWithTheWalkOfTheHomeFolder)
{
    const TempHome home;
    home.fileOfSize("a/b/c", 4 * kKiB);
    home.fileOfSize("a/d", 8 * kKiB);
    home.fileOfSize(".hidden/e", 12 * kKiB);
    ASSERT_EQ(::link(home.path("a/d").c_str(), home.path("a/b/again").c_str()), 0);
    const auto files = HomeWalk::walk({});
    const std::vector<TreeNode> nodes = DiskMap::children(home.path());
    ASSERT_THAT(nodes, SizeIs(testing::Ge(2U)));
    for (const TreeNode& node : nodes) {
        const auto folder = files->folderAt(node.path);
        EXPECT_TRUE(!folder || files->folder(*folder).bytes == node.size) << node.path;
    }
    EXPECT_EQ(files->folder(files->folderAt(home.path("a")).value()).bytes, 12 * kKiB);
}

TEST(DiskMapTest, aStoppedMeasurementEnds)
{
    const TempHome home;
    home.fileOfSize("map/folder/x", 4 * kKiB);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(DiskMap::children(home.path("map"), stop.get_token()), IsEmpty());
}

} // namespace orlen

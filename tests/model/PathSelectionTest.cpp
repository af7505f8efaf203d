#include "model/PathSelection.h"
#include "model/PlanTicks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace orlen {
namespace {

using Ticked = std::set<std::string>;

FileEntry sized(const std::string& path, std::int64_t size = 1)
{
    FileEntry entry;
    entry.path = path;
    entry.size = size;
    return entry;
}

/// Paths between spaces; "_" stands for a space in a name.
std::vector<std::string> named(const std::string& words)
{
    std::istringstream stream(words);
    std::vector<std::string> paths;
    for (std::string word; stream >> word;) {
        std::ranges::replace(word, '_', ' ');
        paths.push_back(std::move(word));
    }
    return paths;
}

CleanPlan planOf(const std::string& words)
{
    CleanPlan plan;
    plan.sections.resize(2);
    for (const std::string& path : named(words))
        plan.sections[plan.sections[0].entries.size() > 1 ? 1 : 0].entries.push_back(sized(path));
    return plan;
}

std::string joined(const auto& paths)
{
    std::string text;
    for (const auto& path : paths)
        text += (text.empty() ? "" : " ") + path;
    return text;
}

Ticked asSet(const std::string& words)
{
    const auto paths = named(words);
    return {paths.begin(), paths.end()};
}

} // namespace

TEST(PathTreeTest, findsWhatHoldsWhatWhateverSortsBetween)
{
    const std::vector<std::string_view> paths{"/a/x/y", "/a b", "/a", "/a/x", "/a.b/x", "/a", "/b/x"};
    const PathTree tree(paths);
    const int top = tree.find("/a");
    ASSERT_EQ(tree.size(), 6);
    EXPECT_EQ(tree.nodeOf(2), top);
    EXPECT_EQ(tree.nodeOf(5), top);
    EXPECT_EQ(tree.end(top) - top, 3);
    EXPECT_EQ(tree.holder(tree.find("/a/x/y")), tree.find("/a/x"));
    EXPECT_EQ(tree.holder(tree.find("/a/x")), top);
    for (const char* path : {"/a", "/a b", "/a.b/x", "/b/x"})
        EXPECT_EQ(tree.holder(tree.find(path)), PathTree::kNone) << path;
    EXPECT_EQ(tree.find("/b"), PathTree::kNone);
    EXPECT_TRUE(tree.isNested());
    EXPECT_FALSE(PathTree(std::vector<std::string_view>{"/a", "/a b"}).isNested());
}

TEST(PathSelectionTest, aFolderAndWhatIsListedInItAreTickedTogether)
{
    const PathTree listed = PathSelection::listedIn(planOf("/f /f/d /f/d/a /f/d/b /f_e /g"));
    struct Case {
        const char* name;
        const char* before;
        const char* path;
        const char* ticked;
        const char* unticked;
    };
    const Case cases[] = {
        {"a folder", "/g", "/f", "/f /f/d /f/d/a /f/d/b /g", "/g"},
        {"inside a folder", "/f /f/d /f/d/a /f/d/b", "/f/d/a", "/f /f/d /f/d/a /f/d/b", "/f/d/b"},
        {"beside a folder", "/f /f/d /f/d/a /f/d/b", "/f_e", "/f /f_e /f/d /f/d/a /f/d/b",
         "/f /f/d /f/d/a /f/d/b"},
        {"not listed", "/g", "/f/d/c", "/f/d/c /g", "/g"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Ticked ticked = asSet(c.before);
        PathSelection::tick(ticked, listed, named(c.path).front());
        EXPECT_EQ(ticked, asSet(c.ticked));
        ticked = asSet(c.before);
        PathSelection::untick(ticked, listed, named(c.path).front());
        EXPECT_EQ(ticked, asSet(c.unticked));
    }
    Ticked folderOnly = asSet("/f/d");
    PathSelection::addInside(folderOnly, listed);
    EXPECT_EQ(folderOnly, asSet("/f/d /f/d/a /f/d/b"));
    Ticked oneLeftOut = asSet("/f /f/d /f/d/b /g");
    PathSelection::dropOpenFolders(oneLeftOut, listed);
    EXPECT_EQ(oneLeftOut, asSet("/f/d/b /g"));
}

TEST(PathSelectionTest, movesWhatIsTickedOnceAndNothingElse)
{
    struct Case {
        const char* name;
        const char* plan;
        const char* ticked;
        const char* moves;
    };
    const Case cases[] = {
        {"twice in the plan", "/a /b /a", "/a /b", "/a /b"},
        {"twice in the plan, not ticked", "/a /b /a", "/b", "/b"},
        {"in a folder that moves", "/f/x /f", "/f /f/x", "/f"},
        {"in a folder, not ticked", "/f/x /f /f/y", "/f /f/y", "/f/y"},
        {"deep in a folder, not ticked", "/f /f/d/x /f/d", "/f /f/d", ""},
        {"a sibling sorts between", "/f_g /f /f/x", "/f /f/x /f_g", "/f /f g"},
        {"not in the plan", "/a", "/a /b", "/a"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> moves;
        const CleanPlan plan = planOf(c.plan);
        PlanTicks ticks(plan);
        for (std::size_t section = 0; section < plan.sections.size(); ++section) {
            const auto& entries = plan.sections[section].entries;
            for (std::size_t entry = 0; entry < entries.size(); ++entry) {
                if (!asSet(c.ticked).contains(entries[entry].path))
                    ticks.set(section, entry, false);
            }
        }
        for (const FileEntry& entry : PathSelection::moving(ticks.ticked(plan)))
            moves.push_back(entry.path);
        EXPECT_EQ(joined(moves), c.moves);
    }
}

TEST(PathSelectionTest, countsNothingTwice)
{
    const FileEntry folder = sized("/f", 10);
    const FileEntry inside = sized("/f/x", 4);
    const FileEntry beside = sized("/f b", 3);
    EXPECT_EQ(PathSelection::amountOf({&inside, &beside, &folder, &inside, &beside}),
              (PathSelection::Amount{2, 13}));
    EXPECT_EQ(PathSelection::amountOf({}), PathSelection::Amount());
    Finding trash(FindingKind::trash, {folder});
    EXPECT_EQ(PathSelection::listedIn({trash, Finding(FindingKind::logs, {inside})}).size(), 1);
}

} // namespace orlen

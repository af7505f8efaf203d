#include "cli/CleanChoice.h"

#include "cli/CliTexts.h"
#include "cli/ItemList.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

FileEntry entry(const TempHome& home, const std::string& name, std::optional<Rating> rating = std::nullopt)
{
    FileEntry made{home.path(name), 4096};
    made.rating = rating;
    return made;
}

/// Findings as a scan gives them: `both` lies in two of them, and the Trash is no cleanable one.
std::vector<Finding> findings(const TempHome& home)
{
    Finding caches(FindingKind::caches, {entry(home, ".cache/a"), entry(home, ".cache/b", Rating::review),
                                         entry(home, ".cache/c", Rating::keep)});
    caches.rating = Rating::safe;
    Finding downloads(FindingKind::oldDownloads, {entry(home, "Downloads/both"), entry(home, "Downloads/d")});
    Finding large(FindingKind::largeFiles, {entry(home, "f"), entry(home, "f/kept", Rating::keep)});
    Finding duplicates(FindingKind::duplicates, {entry(home, "Downloads/both"), entry(home, "src/p/copy")});
    duplicates.items[1].isTickedAlone = true;
    Finding trash(FindingKind::trash, {entry(home, ".local/share/Trash/files/t")});
    return {caches, downloads, duplicates, large, trash};
}

} // namespace

TEST(CleanChoiceTest, kindsLimitWhatTheScanSelected)
{
    const TempHome home;
    const std::set<std::string> preselected{home.path(".cache/a"), home.path("Downloads/d")};
    struct Case {
        const char* name;
        CleanChoice choice;
        std::vector<std::string> expected;
    };
    const Case cases[] = {
        {"nothing said", {}, {".cache/a", "Downloads/d"}},
        {"one kind", {{"caches"}, false, {}}, {".cache/a"}},
        {"a kind without entries", {{"logs"}, false, {}}, {}},
        {"all of a kind but what is rated Keep", {{"caches"}, true, {}}, {".cache/a", ".cache/b"}},
        {"all of two kinds", {{"duplicates", "oldDownloads"}, true, {}}, {"Downloads/both", "Downloads/d"}},
        {"a folder would take along what is rated Keep", {{"largeFiles"}, true, {}}, {}},
        {"all of what never moves", {{"trash"}, true, {}}, {}},
        {"a path that is part of a repository", {{}, false, {home.path("src/p/copy")}}, {"src/p/copy"}},
        {"a path, whatever its rating", {{}, false, {home.path(".cache/c")}}, {".cache/c"}},
        {"a path in another spelling", {{}, false, {home.path(".cache/x/..//c/")}}, {".cache/c"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const CleanChoice::Result result = c.choice.apply(findings(home), preselected);
        std::set<std::string> expected;
        for (const std::string& name : c.expected)
            expected.insert(home.path(name));
        EXPECT_EQ(result.paths, expected);
        EXPECT_EQ(result.objection, Message());
    }
}

TEST(CleanChoiceTest, aPathThatMayNotMoveStopsEverything)
{
    const TempHome home;
    std::vector<Finding> found = findings(home);
    found.push_back(Finding(FindingKind::largeFiles, {entry(home, "Documents")}));
    struct Case {
        const char* name;
        std::string path;
        const char* objection;
    };
    const Case cases[] = {
        {"no entry", home.path("Downloads"), "not an entry of the scan"},
        {"below an entry", home.path(".cache/a/x"), "not an entry of the scan"},
        {"nothing at all", "", "not an entry of the scan"},
        {"in the Trash", home.path(".local/share/Trash/files/t"), "never moved again"},
        {"protected meanwhile", home.path("Documents"), "is protected"},
        {"not UTF-8", home.path(".cache/\xff\n"), "not an entry of the scan"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const CleanChoice choice{{}, false, {home.path(".cache/a"), c.path}};
        const CleanChoice::Result result = choice.apply(found, {});
        EXPECT_THAT(result.objection.base(), HasSubstr(c.objection));
        EXPECT_EQ(result.objection.base().find('\n'), std::string::npos);
        EXPECT_THAT(result.paths, IsEmpty());
    }
}

TEST(ItemListTest, countsWhatMovesOnce)
{
    const TempHome home;
    const FileEntry both = entry(home, "both");
    CleanPlan plan;
    plan.sections = {{"oldDownloads", {}, "", {both, entry(home, "f")}},
                     {"duplicates", {}, "", {both, entry(home, "f/inside")}}};
    const ItemList list = ItemList::toClean(plan, ItemList::Beside::nothing);
    EXPECT_EQ(list.summary(CliTexts::kItemsOfSize).base(), "2 items (8 KB)");
}

TEST(CleanChoiceTest, aPathOfTwoFindingsIsPlannedOnlyForTheKindAskedFor)
{
    CleanPlan plan;
    plan.sections = {{"oldDownloads", {}, "", {}}, {"duplicates", {}, "", {}}};
    EXPECT_THAT((CleanChoice{{"duplicates"}, true, {}}.limited(plan).sections), SizeIs(1));
    EXPECT_THAT(CleanChoice{}.limited(plan).sections, SizeIs(2));
}

} // namespace orlen

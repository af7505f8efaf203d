#include "app/KeptCopies.h"

#include "app/EventLoop.h"
#include "app/ScannedModel.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAre;

/// Three copies of one file, the oldest of which has the longest path, and what a scan makes of them.
struct KeptCopiesTest : testing::Test {
    KeptCopiesTest()
    {
        const TimePoint now = std::chrono::system_clock::now();
        TempHome::setTimes(archived, now - 72h, now - 72h);
        TempHome::setTimes(brief, now - 48h, now - 48h);
        app.results()->startScan();
        EXPECT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    }

    [[nodiscard]] std::vector<FileEntry> copies() const
    {
        for (const Finding& finding : app.results()->findings()) {
            if (finding.kind == FindingKind::duplicates)
                return finding.items;
        }
        return {};
    }
    [[nodiscard]] std::vector<std::string> paths() const
    {
        std::vector<std::string> paths;
        for (const FileEntry& entry : copies())
            paths.push_back(entry.path);
        return paths;
    }
    [[nodiscard]] bool keeps(const std::string& path) const
    {
        const auto all = copies();
        return !all.empty() &&
               std::ranges::all_of(all, [&](const FileEntry& entry) { return entry.kept->path == path; });
    }

    TempHome home;
    std::string archived = home.fileOfSize("Documents/archive/2024/report.pdf", 2'000'000, 5);
    std::string brief = home.fileOfSize("Documents/a.pdf", 2'000'000, 5);
    std::string fresh = home.fileOfSize("Documents/new/report.pdf", 2'000'000, 5);
    AppModel app{kCommand};
};

} // namespace

TEST_F(KeptCopiesTest, theRuleSaysWhichIsKept)
{
    ASSERT_TRUE(keeps(brief));
    app.results()->setKeepRule({.order = KeepRule::Order::newest});
    EXPECT_TRUE(waitUntil([&] { return keeps(fresh); }));
    EXPECT_THAT(paths(), UnorderedElementsAre(archived, brief));
    EXPECT_EQ(noteOf(copies()[0]).base(), "Identical to report.pdf — Orlen keeps that copy");
    app.results()->setKeepRule({.order = KeepRule::Order::oldest});
    EXPECT_TRUE(waitUntil([&] { return keeps(archived); }));
    app.results()->setKeepRule({});
    EXPECT_TRUE(waitUntil([&] { return keeps(brief); }));
    EXPECT_THAT(paths(), UnorderedElementsAre(archived, fresh));
}

TEST_F(KeptCopiesTest, theFormerOneIsTickedInTheNewOnesPlace)
{
    app.results()->setSelection({fresh});
    app.results()->setKeepRule({.order = KeepRule::Order::newest});
    EXPECT_TRUE(waitUntil([&] { return keeps(fresh); }));
    EXPECT_THAT(app.results()->selection(), ElementsAre(brief));
}

TEST_F(KeptCopiesTest, theOneInAFolderIsKept)
{
    app.results()->setKeepRule({.order = KeepRule::Order::newest, .folder = home.path("Documents/archive")});
    EXPECT_TRUE(waitUntil([&] { return keeps(archived); }));
    EXPECT_THAT(paths(), UnorderedElementsAre(brief, fresh));
    app.results()->setKeepRule({.folder = home.path("Documents")});
    EXPECT_TRUE(waitUntil([&] { return keeps(brief); })) << "the usual one of several in it";
    EXPECT_THAT(paths(), UnorderedElementsAre(archived, fresh)) << "others in it are copies";
    app.results()->setKeepRule(
        {.folder = home.path("Documents/new"), .references = {home.path("Documents/archive")}});
    EXPECT_TRUE(waitUntil([&] { return keeps(archived); })) << "a reference folder weighs more";
}

TEST_F(KeptCopiesTest, whatLiesInAReferenceFolderIsNeitherOfferedNorTicked)
{
    app.results()->setSelection({archived, fresh});
    app.results()->setKeepRule({.references = {home.path("Documents/archive"), home.path("Documents/new")}});
    EXPECT_TRUE(waitUntil([&] { return copies().size() == 1; }));
    EXPECT_THAT(paths(), ElementsAre(brief));
    EXPECT_THAT(app.results()->selection(), Not(Contains(archived)));
    EXPECT_THAT(app.results()->selection(), Not(Contains(fresh)));
    app.results()->setKeepRule({});
    EXPECT_TRUE(waitUntil([&] { return keeps(brief); })) << "and comes back without the rule";
    EXPECT_THAT(paths(), UnorderedElementsAre(archived, fresh));
}

TEST_F(KeptCopiesTest, similarPhotosFollowOnlyTheFoldersOfARule)
{
    const auto chosen = [&](const KeepRule& rule) {
        return *KeptCopies::by(rule, FindingKind::photoDuplicates, copies(), {});
    };
    EXPECT_THAT(chosen({.order = KeepRule::Order::newest}).changes, IsEmpty());
    const auto inFolder = chosen({.folder = home.path("Documents/new")});
    ASSERT_THAT(inFolder.changes, SizeIs(1));
    EXPECT_EQ(inFolder.changes.front().kept, fresh);
    EXPECT_EQ(noteOf(inFolder.copies.front()).base(), "Similar to report.pdf — the one you keep");
    const auto always = chosen({.references = {home.path("Documents/new"), home.path("Documents/archive")}});
    EXPECT_THAT(always.copies, SizeIs(1));
    EXPECT_THAT(always.references, SizeIs(1));
}

TEST_F(KeptCopiesTest, aSetWhoseFilesHaveChangedStaysAsItIs)
{
    home.fileOfSize("Documents/new/report.pdf", 2'100'000, 6);
    app.results()->setKeepRule({.order = KeepRule::Order::newest});
    EXPECT_TRUE(KeptCopies::by({.order = KeepRule::Order::newest}, FindingKind::duplicates, copies(), {})
                    ->changes.empty());
    EXPECT_TRUE(keeps(brief));
    std::filesystem::remove(brief);
    EXPECT_TRUE(KeptCopies::by({.order = KeepRule::Order::oldest}, FindingKind::duplicates, copies(), {})
                    ->changes.empty());
}

TEST_F(KeptCopiesTest, anotherScanFollowsTheRule)
{
    app.results()->setKeepRule(
        {.order = KeepRule::Order::oldest, .references = {home.path("Documents/new")}});
    EXPECT_TRUE(waitUntil([&] { return keeps(fresh); }));
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EXPECT_TRUE(keeps(fresh)) << "from the beginning";
}

/// The same files, listed as large ones too.
struct KeptAndLargeTest : KeptCopiesTest {
    KeptAndLargeTest()
    {
        app.results()->setLargeThresholdMB(1);
        scan(app);
    }

    [[nodiscard]] Finding large() const
    {
        const auto& findings = app.results()->findings();
        return *std::ranges::find(findings, FindingKind::largeFiles, &Finding::kind);
    }
};

TEST_F(KeptAndLargeTest, theKeptOneIsNotSelectedTogetherWithItsCopies)
{
    int apart = 0;
    QObject::connect(app.results(), &Results::keptApart, &app, [&] { ++apart; });
    app.results()->select(std::vector{archived, fresh});
    EXPECT_EQ(apart, 0);
    app.results()->select(std::vector{brief});
    EXPECT_THAT(app.results()->selection(), ElementsAre(brief));
    app.results()->select(std::vector{fresh});
    EXPECT_THAT(app.results()->selection(), ElementsAre(fresh)) << "what was ticked last has the tick";
    EXPECT_EQ(apart, 2);
    app.results()->select(std::vector{brief, archived, fresh});
    EXPECT_THAT(app.results()->selection(), UnorderedElementsAre(archived, fresh));
    app.results()->setSelection({brief, archived});
    EXPECT_THAT(app.results()->selection(), ElementsAre(archived));
}

TEST_F(KeptAndLargeTest, theKeptOneSaysSoWhereItIsListed)
{
    const auto notes = [&] {
        std::map<std::string, std::string> all;
        for (const FileEntry& entry : large().items)
            all[entry.path] = noteOf(entry).base();
        return all;
    };
    EXPECT_THAT(notes()[brief], HasSubstr("Orlen keeps this one of identical files"));
    EXPECT_THAT(notes()[fresh], Not(HasSubstr("identical")));
    app.results()->setKeepRule({.order = KeepRule::Order::newest});
    EXPECT_TRUE(waitUntil([&] { return keeps(fresh); }));
    EXPECT_THAT(notes()[fresh], HasSubstr("Orlen keeps this one of identical files"));
    EXPECT_THAT(notes()[brief], Not(HasSubstr("identical")));
}

TEST_F(KeptAndLargeTest, aPlanOfAllCopiesMovesAllButOne)
{
    app.results()->setKeepRule({.references = {home.path("Documents/new"), home.path("Documents/archive")}});
    EXPECT_TRUE(waitUntil([&] { return copies().size() == 1; }));
    // As large files, in the place of one that was selected.
    app.results()->setSelection({archived});
    CleanPlan plan = app.results()->scanPlan();
    ASSERT_THAT(plan.sections, SizeIs(1));
    plan.sections.front().entries = large().items;
    app.cleanUps()->confirm(plan);
    ASSERT_TRUE(waitUntil([&] { return app.cleanUps()->cleaning()->finished; }));
    EXPECT_EQ(app.cleanUps()->cleaning()->moved, 2);
    ASSERT_THAT(app.cleanUps()->cleaning()->failures, SizeIs(1));
    EXPECT_EQ(app.cleanUps()->cleaning()->failures.front().reason, FailureReason::keptOfSet);
}

} // namespace orlen

#include "app/KeptCopies.h"

#include "app/EventLoop.h"
#include "app/ScannedModel.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
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
    AppModel app{{AppModel::Startup::filesOnly}};
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

TEST_F(KeptCopiesTest, aSetWhoseFilesHaveChangedStaysAsItIs)
{
    home.fileOfSize("Documents/new/report.pdf", 2'100'000, 6);
    app.results()->setKeepRule({.order = KeepRule::Order::newest});
    EXPECT_TRUE(KeptCopies::by({.order = KeepRule::Order::newest}, copies(), {})->changes.empty());
    EXPECT_TRUE(keeps(brief));
    std::filesystem::remove(brief);
    EXPECT_TRUE(KeptCopies::by({.order = KeepRule::Order::oldest}, copies(), {})->changes.empty());
}

TEST_F(KeptCopiesTest, anotherScanFollowsTheRule)
{
    app.results()->setKeepRule({.order = KeepRule::Order::oldest});
    EXPECT_TRUE(waitUntil([&] { return keeps(archived); }));
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EXPECT_TRUE(waitUntil([&] { return keeps(archived); }));
}

} // namespace orlen

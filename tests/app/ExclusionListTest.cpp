#include "app/ExclusionList.h"

#include "app/ScannedModel.h"
#include "app/Sizes.h"
#include "clean/Persist.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Exclusion path(const std::string& text)
{
    return {Exclusion::Kind::path, text};
}

Exclusion named(const std::string& text)
{
    return {Exclusion::Kind::name, text};
}

std::vector<std::string> offered(const AppModel& model)
{
    std::vector<std::string> paths;
    for (const Finding& finding : model.results()->findings()) {
        for (const FileEntry& entry : finding.items)
            paths.push_back(entry.path);
    }
    std::ranges::sort(paths);
    return paths;
}

struct ExclusionListTest : testing::Test {
    TempHome home;
    std::string chromium = home.path(".cache/chromium");
    std::string mozilla = home.path(".cache/mozilla");
    std::string logs = home.path(".xsession-errors");

    ExclusionListTest()
    {
        (void)home.fileOfSize(".cache/chromium/pages", 400 * kKiB);
        (void)home.fileOfSize(".cache/mozilla/covers", 800 * kKiB);
        (void)home.fileOfSize(".xsession-errors", 64 * kKiB);
    }
};

} // namespace

TEST_F(ExclusionListTest, entriesLeaveTheResultsAtOnceAndComeBack)
{
    AppModel model(kCommand);
    scan(model);
    const std::vector<Finding> before = model.results()->findings();
    ASSERT_THAT(offered(model), ElementsAre(chromium, mozilla, logs));
    model.results()->deselect(std::vector{chromium});

    ASSERT_TRUE(model.exclusions()->add(path(mozilla + "/covers")).ok());
    EXPECT_THAT(offered(model), ElementsAre(chromium, logs)) << "the folder would take it along";
    EXPECT_THAT(model.results()->selection(), ElementsAre(logs));
    ASSERT_TRUE(model.exclusions()->add(named(".xsession-errors")).ok());
    ASSERT_TRUE(model.exclusions()->add(named("chromium")).ok());
    EXPECT_THAT(model.results()->findings(), IsEmpty());
    EXPECT_EQ(model.results()->totalFound(), 0);

    for (const Exclusion& line : std::vector(model.exclusions()->current().lines()))
        ASSERT_TRUE(model.exclusions()->remove(line).ok());
    EXPECT_EQ(model.results()->findings(), before);
    EXPECT_THAT(model.results()->selection(), ElementsAre(mozilla, logs)) << "as ticked as they were";
    EXPECT_EQ(model.exclusions()->remove(path(mozilla)).error(), ENOENT);
}

TEST_F(ExclusionListTest, holdsForLaterScansUntilItIsRemoved)
{
    {
        AppModel model(kCommand);
        ASSERT_TRUE(model.exclusions()->add(named("mozilla")).ok());
        ASSERT_TRUE(model.exclusions()->add(named("mozilla")).ok());
        EXPECT_THAT(model.exclusions()->current().lines(), SizeIs(1));
    }
    AppModel model(kCommand);
    scan(model);
    EXPECT_THAT(offered(model), ElementsAre(chromium, logs));
    ASSERT_TRUE(model.exclusions()->remove(named("mozilla")).ok());
    EXPECT_THAT(offered(model), ElementsAre(chromium, mozilla, logs)) << "without another scan";
    EXPECT_THAT(model.results()->selection(), ElementsAre(chromium, mozilla, logs));
}

TEST_F(ExclusionListTest, anExcludedFileIsNoCopyButMayBeTheOneThatIsKept)
{
    const std::string kept = home.fileOfSize("Documents/film", 2'000 * kKiB);
    const std::string copy = home.fileOfSize("Documents/film of the first summer", 2'000 * kKiB);
    AppModel model(kCommand);
    ASSERT_TRUE(model.exclusions()->add(path(kept)).ok());
    scan(model);
    const auto copies =
        std::ranges::find(model.results()->findings(), FindingKind::duplicates, &Finding::kind);
    ASSERT_NE(copies, model.results()->findings().end());
    ASSERT_THAT(copies->items, SizeIs(1));
    EXPECT_EQ(copies->items[0].path, copy);
    EXPECT_EQ(copies->items[0].kept->path, kept);
    ASSERT_TRUE(model.exclusions()->add(path(copy)).ok());
    EXPECT_THAT(offered(model), ElementsAre(chromium, mozilla, logs));
}

TEST_F(ExclusionListTest, aPlanMadeBeforeMovesNothingExcluded)
{
    AppModel model(kCommand);
    scan(model);
    const CleanPlan plan = model.results()->scanPlan();
    ASSERT_TRUE(model.exclusions()->add(path(mozilla)).ok());
    model.cleanUps()->confirm(plan);
    ASSERT_TRUE(waitUntil([&] { return model.cleanUps()->cleaning()->finished; }));
    EXPECT_THAT(model.cleanUps()->cleaning()->failures,
                ElementsAre(CleanFailure{mozilla, FailureReason::excluded}));
    EXPECT_TRUE(TempHome::exists(mozilla));
    EXPECT_FALSE(TempHome::exists(chromium));
}

TEST_F(ExclusionListTest, whatCannotBeSavedChangesNothing)
{
    const std::string file = home.file(".local/share/Orlen/exclusions.json", "[{\"name\":\"mozilla\"}]");
    const AppModel reader({AppModel::Startup::filesOnly, AppModel::Access::reader, {}});
    EXPECT_EQ(reader.exclusions()->add(named("a")).error(), EROFS);
    TempHome::setMode(file, 0);
    AppModel model(kCommand);
    EXPECT_THAT(model.notices(), SizeIs(1));
    EXPECT_EQ(model.exclusions()->add(named("a")).error(), EACCES);
    // Nobody can tell what is excluded, so nothing is offered.
    EXPECT_THAT(model.exclusions()->current().lines(), ElementsAre(path("/")));
    scan(model);
    EXPECT_THAT(offered(model), IsEmpty());
    TempHome::setMode(file, 0600);
    EXPECT_EQ(TempHome::content(file), "[{\"name\":\"mozilla\"}]");
}

} // namespace orlen

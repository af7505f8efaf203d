#include "tools/apps/Uninstall.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

FileEntry entryAt(const std::string& path)
{
    FileEntry entry;
    entry.path = path;
    return entry;
}

TEST(UninstallTest, thePlanHoldsTheApplicationThenItsLeftovers)
{
    AppInfo app{"/Applications/Foo.app", "Foo", "org.foo.Foo", 4096};
    const CleanPlan plan = Uninstall::plan(app, std::vector<FileEntry>{entryAt("/home/x")});
    EXPECT_EQ(plan.title.base(), "Uninstall Foo");
    ASSERT_EQ(plan.sections.size(), 2U);
    EXPECT_EQ(plan.sections[0].id + plan.sections[0].title.base() + plan.sections[0].symbol,
              "appApplicationapp.fill");
    EXPECT_EQ(plan.sections[0].entries[0].size, 4096);
    EXPECT_EQ(plan.sections[1].id + plan.sections[1].title.base() + plan.sections[1].symbol,
              "leftLeftoversfolder.fill");
    EXPECT_EQ(Uninstall::plan(app, {}).sections.size(), 1U);
}

TEST(UninstallTest, severalHaveASectionEachAndNoPathTwice)
{
    const Uninstall::Removal foo{{"/a/Foo", "Foo"}, {entryAt("/home/own"), entryAt("/home/both")}, true};
    const Uninstall::Removal bar{{"/a/Bar", "Bar"}, {entryAt("/home/both")}};
    const CleanPlan plan = Uninstall::plan(std::vector{foo, bar});
    EXPECT_EQ(plan.title.base(), "Uninstall 2 applications");
    ASSERT_EQ(plan.sections.size(), 2U);
    EXPECT_NE(plan.sections[0].id, plan.sections[1].id);
    EXPECT_EQ(plan.sections[0].title.base(), "Foo");
    ASSERT_EQ(plan.sections[0].entries.size(), 3U);
    EXPECT_EQ(noteOf(plan.sections[0].entries[0]).base(), "Quit Foo first");
    ASSERT_EQ(plan.sections[1].entries.size(), 1U);
    EXPECT_EQ(plan.sections[1].entries[0].path, "/a/Bar");
    EXPECT_TRUE(plan.sections[1].entries[0].notes.empty());

    const CleanPlan one = Uninstall::plan(std::vector{foo});
    EXPECT_EQ(one.title.base(), "Uninstall Foo");
    ASSERT_EQ(one.sections.size(), 2U);
    EXPECT_EQ(one.sections[0].entries[0].notes.size(), 1U);
}

} // namespace
} // namespace orlen

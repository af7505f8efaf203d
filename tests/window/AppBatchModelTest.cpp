#include "window/apps/AppBatchModel.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "window/AppsOnDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSignalSpy>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace orlen {

namespace {

using testing::ElementsAre;

struct Batch {
    Batch() { batch.setList(&apps); }

    [[nodiscard]] bool isSettled() const { return !apps.isLoading() && !apps.isMeasuring(); }
    [[nodiscard]] bool isListed(int count)
    {
        return waitUntil([&] { return isSettled() && apps.rowCount() == count; });
    }
    void tick(const std::string& name)
    {
        const auto& all = apps.apps();
        apps.tick(static_cast<int>(std::ranges::find(all, name, &AppInfo::name) - all.begin()));
    }
    [[nodiscard]] std::vector<std::string> ticked() const
    {
        std::vector<std::string> names;
        for (const AppInfo& each : apps.ticked())
            names.push_back(each.name);
        return names;
    }
    /// The plan in the review, once it is there; empty if there is none.
    [[nodiscard]] CleanPlan reviewed()
    {
        batch.review();
        if (!waitUntil([&] { return !batch.isBusy(); }) || !WindowState::of(app).sheet())
            return {};
        return std::get<PlanSheet>(*WindowState::of(app).sheet()).plan;
    }
    [[nodiscard]] bool cleanUp(const CleanPlan& plan)
    {
        WindowState::of(app).setSheet(std::nullopt);
        app.cleanUps()->confirm(plan);
        return waitUntil([&] { return app.cleanUps()->cleaning() && app.cleanUps()->cleaning()->finished; });
    }

    AppModel app{{AppModel::Startup::full, AppModel::Access::writer, {}}};
    AppListModel apps{app};
    AppBatchModel batch{app};
};

std::vector<std::string> pathsIn(const PlanSection& section)
{
    std::vector<std::string> paths;
    for (const FileEntry& entry : section.entries)
        paths.push_back(entry.path);
    return paths;
}

} // namespace

TEST(AppBatchModelTest, whatOrlenCanRemoveIsTicked)
{
    const TempHome home;
    AppsOnDisk::launcher(home, "org.example.Kite", "Kite",
                         AppsOnDisk::image(home, "Applications/Kite.AppImage"));
    AppsOnDisk::image(home, "Applications/Lark.AppImage");
    home.fileOfSize(".config/org.example.Kite/a", 8'192);
    home.file(".local/share/flatpak/app/org.example.Wren/current/active/metadata");
    Batch b;
    ASSERT_TRUE(b.isListed(3));
    EXPECT_EQ(b.batch.count(), 0);
    EXPECT_EQ(b.batch.total(), "");
    b.tick("Wren");
    b.apps.tick(-1);
    b.apps.tick(3);
    EXPECT_EQ(b.batch.count(), 0);
    b.tick("Lark");
    b.tick("Kite");
    EXPECT_EQ(b.batch.chosenText(), "2 of 2 selected");
    EXPECT_EQ(b.batch.total(), "90 KB") << "with the data";
    b.tick("Lark");
    EXPECT_THAT(b.ticked(), ElementsAre("Kite"));
    b.batch.clear();
    EXPECT_EQ(b.batch.count(), 0);
    b.batch.review();
    EXPECT_FALSE(b.batch.isBusy());
}

TEST(AppBatchModelTest, theReviewHasWhatIsSurelyTheirsAndNotExcluded)
{
    const TempHome home;
    const std::string kite = AppsOnDisk::image(home, "Applications/Kite.AppImage");
    const std::string lark = AppsOnDisk::image(home, "Applications/Lark.AppImage");
    AppsOnDisk::image(home, "Applications/Wren.AppImage");
    AppsOnDisk::launcher(home, "org.example.Kite", "Kite", kite);
    home.fileOfSize(".config/org.example.Kite/a", 8'192);
    home.fileOfSize(".cache/org.example.Kite/a", 8'192);
    home.fileOfSize(".cache/kite/a", 8'192); // by name only
    home.fileOfSize(".config/Lark/a", 8'192);
    home.link(home.outside("system/proc/4711/exe"), lark);
    Batch b;
    ASSERT_TRUE(b.isListed(3));
    ASSERT_TRUE(b.app.exclusions()->add({Exclusion::Kind::path, home.path(".cache/org.example.Kite")}).ok());
    b.tick("Lark");
    b.tick("Kite");
    const CleanPlan plan = b.reviewed();
    EXPECT_EQ(plan.title.base(), "Uninstall 2 applications");
    ASSERT_EQ(plan.sections.size(), 2U);
    EXPECT_EQ(plan.sections[0].title.base(), "Kite");
    EXPECT_THAT(pathsIn(plan.sections[0]),
                ElementsAre(kite, home.path(".config/org.example.Kite"),
                            home.path(".local/share/applications/org.example.Kite.desktop")));
    EXPECT_EQ(plan.sections[0].entries[0].size, 40'960);
    EXPECT_EQ(pathsIn(plan.sections[1]).front(), lark);
    EXPECT_EQ(noteOf(plan.sections[1].entries[0]).base(), "Quit Lark first");
    // The review may be left, and the ticks are still there.
    WindowState::of(b.app).setSheet(std::nullopt);
    EXPECT_THAT(b.ticked(), ElementsAre("Kite", "Lark"));
}

TEST(AppBatchModelTest, whatIsGoneMeanwhileIsLeftOut)
{
    const TempHome home;
    const std::string kite = AppsOnDisk::image(home, "Applications/Kite.AppImage");
    const std::string lark = AppsOnDisk::image(home, "Applications/Lark.AppImage");
    AppsOnDisk::image(home, "Applications/Wren.AppImage");
    Batch b;
    ASSERT_TRUE(b.isListed(3));
    b.tick("Kite");
    b.tick("Lark");
    std::filesystem::remove(kite);
    EXPECT_EQ(b.reviewed().title.base(), "Uninstall Lark");
    WindowState::of(b.app).setSheet(std::nullopt);
    ASSERT_TRUE(b.isListed(2));
    EXPECT_THAT(b.ticked(), ElementsAre("Lark"));

    std::filesystem::remove(lark);
    EXPECT_TRUE(b.reviewed().sections.empty());
    ASSERT_TRUE(b.isListed(1));
    EXPECT_EQ(b.batch.count(), 0);
}

TEST(AppBatchModelTest, aSearchForWhatIsNoLongerTickedIsDropped)
{
    const TempHome home;
    AppsOnDisk::image(home, "Applications/Kite.AppImage");
    AppsOnDisk::image(home, "Applications/Lark.AppImage");
    Batch b;
    ASSERT_TRUE(b.isListed(2));
    b.tick("Kite");
    b.batch.review();
    EXPECT_TRUE(b.batch.isBusy());
    b.tick("Lark");
    EXPECT_FALSE(b.batch.isBusy());
    const CleanPlan plan = b.reviewed();
    EXPECT_EQ(plan.sections.size(), 2U) << "of the later search";
}

TEST(AppBatchModelTest, theCleanUpTakesThemAndCanBeUndone)
{
    const TempHome home;
    const std::string kite = AppsOnDisk::image(home, "Applications/Kite.AppImage");
    const std::string lark = AppsOnDisk::image(home, "Applications/Lark.AppImage");
    AppsOnDisk::image(home, "Applications/Wren.AppImage");
    AppsOnDisk::launcher(home, "org.example.Kite", "Kite", kite);
    home.fileOfSize(".config/org.example.Kite/a", 8'192);
    Batch b;
    ASSERT_TRUE(b.isListed(3));
    for (const char* name : {"Kite", "Lark", "Wren"})
        b.tick(name);
    CleanPlan plan = b.reviewed();
    ASSERT_EQ(plan.sections.size(), 3U);
    plan.sections.pop_back(); // unticked there
    ASSERT_TRUE(b.cleanUp(plan));
    ASSERT_TRUE(b.isListed(1));
    EXPECT_THAT(b.ticked(), ElementsAre("Wren"));
    EXPECT_FALSE(TempHome::exists(kite) || TempHome::exists(lark) ||
                 TempHome::exists(home.path(".config/org.example.Kite")));

    const CleanRecord& record = b.app.cleanUps()->history().front();
    EXPECT_EQ(record.items.size(), 4U);
    bool isRestored = false;
    ASSERT_TRUE(b.app.cleanUps()->startRestore(record, {}, [&](const auto&) { isRestored = true; }));
    ASSERT_TRUE(waitUntil([&] { return isRestored; }));
    ASSERT_TRUE(b.isListed(3));
    EXPECT_THAT(b.ticked(), ElementsAre("Wren"));
    EXPECT_TRUE(TempHome::exists(kite) && TempHome::exists(lark) &&
                TempHome::exists(home.path(".config/org.example.Kite/a")));
}

} // namespace orlen

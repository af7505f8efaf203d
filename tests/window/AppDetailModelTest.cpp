#include "window/apps/AppDetailModel.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "window/AppsOnDisk.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <memory>

namespace orlen {

namespace {

struct Detail {
    Detail() { detail.setList(&apps); }

    /// Shows the application of that name and waits until all is known of it.
    [[nodiscard]] bool show(const std::string& name)
    {
        if (!waitUntil([&] { return apps.rowCount() > 0 && !apps.isLoading(); }))
            return false;
        const auto& all = apps.apps();
        const auto found =
            std::find_if(all.begin(), all.end(), [&](const AppInfo& a) { return a.name == name; });
        detail.show(static_cast<int>(found - all.begin()));
        return detail.isOpen() && waitUntil([&] { return !detail.isLoading(); });
    }

    [[nodiscard]] QString text(int row, AppDetailModel::Role role) const
    {
        return detail.index(row).data(static_cast<int>(role)).toString();
    }

    AppModel app{{AppModel::Startup::full, AppModel::Access::writer, {}}};
    AppListModel apps{app};
    AppDetailModel detail{app};
    QAbstractItemModelTester tester{&detail, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST(AppDetailModelTest, leadsFromTheChosenLeftoversToTheReview)
{
    const TempHome home;
    const std::string path = AppsOnDisk::image(home, "Applications/Kite.AppImage");
    AppsOnDisk::launcher(home, "org.example.Kite", "Kite", path);
    home.fileOfSize(".config/org.example.Kite/a", 8'192);
    home.fileOfSize(".cache/org.example.Kite/b", 4'096);
    home.fileOfSize(".cache/kite/b", 4'096);
    Detail d;
    ASSERT_TRUE(d.show("Kite"));
    EXPECT_EQ(d.detail.heading(), "Leftovers found by bundle identifier (org.example.Kite)");
    ASSERT_EQ(d.detail.rowCount(), 4);
    EXPECT_EQ(d.text(0, AppDetailModel::Role::folder), "~/.config");
    EXPECT_EQ(d.text(0, AppDetailModel::Role::note), "");
    EXPECT_EQ(d.text(3, AppDetailModel::Role::note), "Matched by name only");
    EXPECT_EQ(d.detail.chosenText(), "3 of 4 selected");
    EXPECT_EQ(d.text(3, AppDetailModel::Role::checked), "false");

    d.detail.toggleAll();
    EXPECT_EQ(d.detail.checkState(), Qt::Checked);
    d.detail.toggleAll();
    EXPECT_EQ(d.detail.checkState(), Qt::Unchecked);
    EXPECT_EQ(d.detail.total(), "41 KB");
    d.detail.toggle(0);
    d.detail.toggle(7);
    EXPECT_EQ(d.detail.checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(d.detail.chosenText(), "1 of 4 selected");

    ASSERT_TRUE(d.detail.isReady());
    d.detail.review();
    EXPECT_FALSE(d.detail.isOpen());
    ASSERT_TRUE(WindowState::of(d.app).sheet() &&
                std::holds_alternative<PlanSheet>(*WindowState::of(d.app).sheet()));
    const CleanPlan& plan = std::get<PlanSheet>(*WindowState::of(d.app).sheet()).plan;
    EXPECT_EQ(plan.title.base(), "Uninstall Kite");
    ASSERT_EQ(plan.sections.size(), 2);
    EXPECT_EQ(plan.sections[0].entries.at(0).path, path);
    EXPECT_EQ(plan.sections[0].entries.at(0).size, 40'960);
    ASSERT_EQ(plan.sections[1].entries.size(), 1);
    EXPECT_EQ(plan.sections[1].entries[0].path, home.path(".config/org.example.Kite"));
}

TEST(AppDetailModelTest, isBackAfterAReviewThatWasCancelledAndOnlyThen)
{
    const TempHome home;
    AppsOnDisk::image(home, "Applications/Kite.AppImage");
    home.fileOfSize(".config/Kite/a", 8'192);
    home.fileOfSize(".cache/Kite/a", 8'192);
    Detail d;
    ASSERT_TRUE(d.show("Kite"));
    d.detail.toggle(0);
    const QString chosen = d.detail.chosenText();
    d.detail.review();
    QCoreApplication::processEvents();
    EXPECT_FALSE(d.detail.isOpen());
    WindowState::of(d.app).setSheet(std::nullopt);
    ASSERT_TRUE(waitUntil([&] { return d.detail.isOpen(); }));
    EXPECT_EQ(d.detail.chosenText(), chosen);

    d.detail.review();
    CleanPlan plan = std::get<PlanSheet>(*WindowState::of(d.app).sheet()).plan;
    plan.sections.resize(1);
    d.app.cleanUps()->confirm(plan);
    QCoreApplication::processEvents();
    EXPECT_FALSE(d.detail.isOpen());
    ASSERT_TRUE(waitUntil([&] { return d.app.cleanUps()->cleaning()->finished; }));
    EXPECT_FALSE(d.detail.isOpen());
}

TEST(AppDetailModelTest, offersNoLeftoversWhileAnotherCopyUsesThem)
{
    const TempHome home;
    AppsOnDisk::image(home, "Applications/Kite.AppImage");
    AppsOnDisk::image(home, "Downloads/Kite-2.AppImage");
    home.fileOfSize(".config/Kite/a", 8'192);
    Detail d;
    ASSERT_TRUE(d.show("Kite"));
    EXPECT_TRUE(d.detail.isOtherCopyInstalled());
    EXPECT_EQ(d.detail.rowCount(), 0);
    EXPECT_EQ(d.detail.heading(), "Leftovers found by name");
    EXPECT_TRUE(d.detail.isReady());
}

TEST(AppDetailModelTest, givesTheCommandOfWhatItCannotRemove)
{
    const TempHome home;
    home.file(".local/share/flatpak/app/org.example.Lark/current/active/metadata");
    Detail d;
    ASSERT_TRUE(d.show("Lark"));
    EXPECT_FALSE(d.detail.isRemovable());
    EXPECT_FALSE(d.detail.isReady());
    d.detail.review();
    EXPECT_FALSE(WindowState::of(d.app).sheet());
    d.detail.copyCommand();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), d.detail.command());
    EXPECT_TRUE(d.detail.advice().endsWith(d.detail.command()));
    EXPECT_TRUE(d.detail.command().contains("org.example.Lark"));
}

TEST(AppDetailModelTest, closesWhenItsApplicationIsGone)
{
    const TempHome home;
    const std::string path = AppsOnDisk::image(home, "Applications/Kite.AppImage");
    AppsOnDisk::image(home, "Applications/Lark.AppImage");
    Detail d;
    ASSERT_TRUE(d.show("Kite"));
    FileEntry entry;
    entry.path = path;
    d.app.cleanUps()->confirm({Uuid::random(), {}, {{"app", {}, "", {entry}, {}}}});
    EXPECT_TRUE(waitUntil([&] { return !d.detail.isOpen(); }));
    EXPECT_EQ(d.apps.rowCount(), 1);
}

} // namespace orlen

#include "window/apps/LeftBehindModel.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "window/AppsOnDisk.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include <filesystem>

namespace orlen {

namespace {

void leave(const TempHome& home, const std::string& folder, std::int64_t bytes)
{
    const TimePoint longAgo = *timeFromIso("2024-05-01T10:00:00Z");
    TempHome::setTimes(home.fileOfSize(folder + "/a", bytes), longAgo, longAgo);
    TempHome::setTimes(home.path(folder), longAgo, longAgo);
}

struct Behind {
    Behind() { behind.setList(&apps); }

    [[nodiscard]] bool isSettled() const { return !apps.isLoading() && !behind.isLoading(); }
    [[nodiscard]] QString text(int row, LeftoverListModel::Role role) const
    {
        return behind.index(row).data(static_cast<int>(role)).toString();
    }

    AppModel app{{AppModel::Startup::full, AppModel::Access::writer, {}}};
    AppListModel apps{app};
    LeftBehindModel behind{app};
    QAbstractItemModelTester tester{&behind, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST(LeftBehindModelTest, leadsFromWhatIsCheckedToTheReviewAndTheTrash)
{
    const TempHome home;
    leave(home, ".config/Fooqux", 8'192);
    leave(home, ".cache/Fooqux", 40'960);
    home.file(".var/app/org.fooqux.Gone/data/a");
    AppsOnDisk::image(home, "Applications/Kite.AppImage");
    Behind b;
    ASSERT_TRUE(waitUntil([&] { return b.isSettled() && b.behind.rowCount() == 3; }));
    EXPECT_EQ(b.apps.rowCount(), 1);
    EXPECT_EQ(b.behind.summary(), "3 folders\u00a0· 53 KB");
    EXPECT_EQ(b.text(0, LeftoverListModel::Role::name), "~/.cache/Fooqux");
    EXPECT_EQ(b.text(0, LeftoverListModel::Role::explanation),
              "No program named Fooqux is installed; not changed since 2024");
    EXPECT_EQ(b.behind.checkState(), Qt::Unchecked);
    EXPECT_FALSE(b.behind.isReady());
    EXPECT_EQ(b.behind.total(), "");

    b.behind.show();
    b.behind.toggle(0);
    EXPECT_EQ(b.behind.total(), "41 KB");
    b.behind.review();
    EXPECT_FALSE(b.behind.isOpen());
    ASSERT_TRUE(WindowState::of(b.app).sheet());
    const CleanPlan plan = std::get<PlanSheet>(*WindowState::of(b.app).sheet()).plan;
    ASSERT_EQ(plan.sections.size(), 1);
    ASSERT_EQ(plan.sections[0].entries.size(), 1);
    WindowState::of(b.app).setSheet(std::nullopt);
    ASSERT_TRUE(waitUntil([&] { return b.behind.isOpen(); }));
    EXPECT_EQ(b.behind.chosenText(), "1 of 3 selected");

    b.app.cleanUps()->confirm(plan);
    ASSERT_TRUE(waitUntil([&] { return b.behind.rowCount() == 2; }));
    EXPECT_FALSE(TempHome::exists(home.path(".cache/Fooqux")));
    EXPECT_EQ(b.app.cleanUps()->history().front().title, "Left behind by apps that are gone");
}

TEST(LeftBehindModelTest, hasNothingToShowInAHomeWithoutThem)
{
    const TempHome home;
    Behind b;
    ASSERT_TRUE(waitUntil([&] { return b.isSettled(); }));
    b.behind.show();
    EXPECT_FALSE(b.behind.isOpen());
    EXPECT_EQ(b.behind.rowCount(), 0);
}

} // namespace orlen

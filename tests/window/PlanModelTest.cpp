#include "window/review/PlanModel.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/cleaning/CleaningModel.h"
#include "window/lists/Remembered.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSettings>
#include <QSignalSpy>

namespace orlen {

namespace {

using namespace std::chrono_literals;

/// A plan of two sections over real files: two caches and one app.
class PlanModelTest : public testing::Test {
protected:
    PlanModelTest()
    {
        CleanPlan plan;
        plan.title = Message::verbatim("Uninstall Viewer");
        plan.sections.push_back({"caches",
                                 Message::verbatim("App caches"),
                                 "internaldrive.fill",
                                 {entry("a", 8), entry("b", 4)}});
        plan.sections.push_back({"app", Message::verbatim("Viewer"), "app.fill", {entry("c", 12)}});
        WindowState::of(m_app).setSheet(PlanSheet{plan});
    }

    [[nodiscard]] FileEntry entry(const std::string& name, int kilobytes) const
    {
        return {m_home.fileOfSize(".cache/" + name, kilobytes * 1024), kilobytes * 1024};
    }
    [[nodiscard]] QStringList shown(PlanModel::Role role) const
    {
        QStringList texts;
        for (int row = 0; row < m_plan.rowCount(); ++row)
            texts << m_plan.data(m_plan.index(row), static_cast<int>(role)).toString();
        return texts;
    }
    [[nodiscard]] QStringList names() const { return shown(PlanModel::Role::name); }
    [[nodiscard]] QStringList marks() const { return shown(PlanModel::Role::mark); }

    TempHome m_home;
    AppModel m_app{{AppModel::Startup::filesOnly, AppModel::Access::writer, {}}};
    PlanModel m_plan{m_app};
    QAbstractItemModelTester m_tester{&m_plan, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(PlanModelTest, showsEachSectionOverItsEntriesAllChecked)
{
    EXPECT_EQ(m_plan.title(), "Uninstall Viewer");
    EXPECT_EQ(names(), QStringList({"App caches", "a", "b", "Viewer", "c"}));
    EXPECT_EQ(marks(), QStringList({"2", "2", "2", "2", "2"}));
    EXPECT_EQ(m_plan.checkedCount(), 3);
    EXPECT_EQ(m_plan.checkedSizeText(), "25 KB");
}

TEST_F(PlanModelTest, aSectionSaysWhetherAllSomeOrNoneIsChecked)
{
    m_plan.toggle(2);
    EXPECT_EQ(marks(), QStringList({"1", "2", "0", "2", "2"}));
    EXPECT_EQ(shown(PlanModel::Role::folder).first(), "1 of 2 selected");
    m_plan.toggle(0);
    EXPECT_EQ(marks(), QStringList({"2", "2", "2", "2", "2"}));
    m_plan.toggle(0);
    m_plan.toggle(3);
    EXPECT_EQ(m_plan.checkedCount(), 0);
    EXPECT_FALSE(m_plan.isConfirmable());
    m_plan.checkAll();
    EXPECT_EQ(m_plan.checkedCount(), 3);
    m_plan.toggle(5);
    m_plan.toggle(-1);
    EXPECT_EQ(m_plan.checkedCount(), 3);
}

TEST_F(PlanModelTest, aFoldedSectionIsStillCheckedAndMoved)
{
    m_plan.fold(0);
    EXPECT_EQ(names(), QStringList({"App caches", "Viewer", "c"}));
    EXPECT_EQ(m_plan.headingOf(2), 1);
    m_plan.toggle(0);
    m_plan.fold(0);
    EXPECT_EQ(marks(), QStringList({"0", "0", "0", "2", "2"}));
    m_plan.setFolded(3, true);
    m_plan.setFolded(3, true);
    EXPECT_EQ(m_plan.rowCount(), 4);
    EXPECT_EQ(m_plan.headingOf(2), 0);
    m_plan.fold(1);
    EXPECT_EQ(m_plan.rowCount(), 4);
}

TEST_F(PlanModelTest, aPathHasOneCheckWhereverItStands)
{
    const FileEntry both = entry("both", 8);
    const FileEntry folder{m_home.folder(".cache/f"), 40 * 1024};
    const FileEntry inside = entry("f/inside", 16);
    CleanPlan plan;
    plan.sections.push_back({"oldDownloads", Message::verbatim("Old downloads"), "", {folder, both}});
    plan.sections.push_back({"duplicates", Message::verbatim("Duplicate files"), "", {inside, both}});
    WindowState::of(m_app).setSheet(PlanSheet{plan});
    EXPECT_EQ(m_plan.checkedCount(), 2) << "the folder, and what is in both";
    EXPECT_EQ(m_plan.checkedSizeText(), "49 KB");
    EXPECT_EQ(shown(PlanModel::Role::size).at(3), "25 KB") << "a section tells of its own";
    m_plan.toggle(5);
    EXPECT_EQ(marks(), QStringList({"1", "2", "0", "1", "2", "0"}));
    EXPECT_EQ(m_plan.checkedCount(), 1);
    m_plan.toggle(4);
    EXPECT_EQ(marks(), QStringList({"0", "0", "0", "0", "0", "0"})) << "the folder would take it along";
    m_plan.toggle(1);
    EXPECT_EQ(marks(), QStringList({"1", "2", "0", "1", "2", "0"}));
    m_plan.toggle(0);
    m_plan.toggle(4);
    m_plan.confirm();
    EXPECT_EQ(m_app.cleanUps()->cleaning()->total, 1);
    ASSERT_TRUE(waitUntil([&] { return m_app.cleanUps()->cleaning()->finished; }));
    EXPECT_FALSE(TempHome::exists(both.path));
    EXPECT_TRUE(TempHome::exists(inside.path));
}

TEST_F(PlanModelTest, whatIsExcludedLeavesAndComesBackAsItWas)
{
    const FileEntry folder{m_home.folder(".cache/f"), 40 * 1024};
    const FileEntry first = entry("f/first", 16);
    const FileEntry second = entry("f/second", 16);
    CleanPlan plan;
    plan.sections.push_back({"caches", Message::verbatim("Caches"), "", {folder, entry("x", 8)}});
    plan.sections.push_back({"logs", Message::verbatim("Logs"), "", {first, second}});
    WindowState::of(m_app).setSheet(PlanSheet{plan});
    ASSERT_EQ(m_plan.checkedCount(), 2);
    const Exclusion line{Exclusion::Kind::name, "first"};
    ASSERT_TRUE(m_app.exclusions()->add(line).ok());
    EXPECT_EQ(names(), QStringList({"Caches", "x", "Logs", "second"})) << "the folder would take it along";
    EXPECT_EQ(shown(PlanModel::Role::folder).at(2), "1 of 1 selected");
    EXPECT_EQ(m_plan.entryCount(), 2);
    m_plan.uncheckAll();
    m_plan.checkAll();
    EXPECT_EQ(m_plan.checkedCount(), 2) << "not what nobody sees";
    m_plan.toggle(3);
    m_plan.fold(0);
    EXPECT_EQ(m_plan.headingOf(2), 1);

    ASSERT_TRUE(m_app.exclusions()->remove(line).ok());
    m_plan.fold(0);
    EXPECT_EQ(names(), QStringList({"Caches", "f", "x", "Logs", "first", "second"}));
    EXPECT_EQ(marks(), QStringList({"1", "0", "2", "1", "2", "0"}))
        << "not with what was unchecked meanwhile";
    ASSERT_TRUE(m_app.exclusions()->add({Exclusion::Kind::path, "/"}).ok());
    EXPECT_EQ(m_plan.rowCount(), 0);
    EXPECT_FALSE(m_plan.isConfirmable());
}

TEST_F(PlanModelTest, movesWhatIsCheckedAndTheOverlayFollows)
{
    WindowState& window = WindowState::of(m_app);
    EXPECT_EQ(window.overlayMinimum(), 1800ms);
    window.setOverlayMinimum(300ms);
    const auto started = std::chrono::steady_clock::now();
    CleaningModel cleaning(m_app);
    m_plan.toggle(2);
    m_plan.confirm();
    EXPECT_FALSE(window.sheet());
    EXPECT_EQ(m_plan.rowCount(), 5) << "a sheet that fades still shows its plan";
    EXPECT_FALSE(cleaning.isFinished());
    EXPECT_EQ(cleaning.planTitle(), "Uninstall Viewer");
    ASSERT_TRUE(waitUntil([&] { return cleaning.isFinished(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - started, 299ms) << "so that a short one can be seen";
    EXPECT_EQ(cleaning.moved(), 2);
    EXPECT_EQ(cleaning.freedText(), "20 KB");
    EXPECT_EQ(cleaning.failed(), 0);
    EXPECT_EQ(cleaning.fraction(), 1);
    EXPECT_TRUE(TempHome::exists(m_home.path(".cache/b")));
    EXPECT_FALSE(TempHome::exists(m_home.path(".cache/a")));
    m_app.cleanUps()->dismissCleaning();
    EXPECT_TRUE(cleaning.isFinished()) << "nor does the overlay change while it fades";
}

TEST_F(PlanModelTest, asksNothingOfAProgramThatOnlyReads)
{
    AppModel reader({AppModel::Startup::filesOnly, AppModel::Access::reader, {}});
    PlanModel plan(reader);
    WindowState::of(reader).setSheet(WindowState::of(m_app).sheet());
    EXPECT_EQ(plan.checkedCount(), 3);
    EXPECT_FALSE(plan.isConfirmable());
    plan.confirm();
    EXPECT_FALSE(reader.cleanUps()->cleaning());
    EXPECT_TRUE(WindowState::of(reader).sheet());
}

TEST_F(PlanModelTest, filtersAndSortsWithinTheSections)
{
    QSettings().clear();
    m_plan.sortBy(static_cast<int>(EntryOrder::Key::name));
    m_plan.sortBy(static_cast<int>(EntryOrder::Key::name));
    EXPECT_EQ(names(), QStringList({"App caches", "b", "a", "Viewer", "c"}));
    EXPECT_TRUE(Remembered::order("review").direction == EntryOrder::Direction::reversed);
    m_plan.setFilter("viewer");
    EXPECT_EQ(names(), QStringList({"Viewer", "c"})) << "the title of a section counts for its entries";
    EXPECT_EQ(m_plan.entryCount(), 3);
    m_plan.setFilter("nothing like it");
    EXPECT_EQ(names(), QStringList());
}

TEST_F(PlanModelTest, tickingASectionTouchesOnlyWhatMatchesTheFilter)
{
    QSettings().clear();
    m_plan.setFilter("b");
    ASSERT_EQ(names(), QStringList({"App caches", "b"}));
    m_plan.toggle(0);
    EXPECT_EQ(m_plan.checkedCount(), 2);
    m_plan.setFilter("");
    EXPECT_EQ(marks(), QStringList({"1", "2", "0", "2", "2"}));
    m_plan.setFilter("b");
    m_plan.checkAll();
    EXPECT_EQ(m_plan.checkedCount(), 3);
    m_plan.uncheckAll();
    EXPECT_EQ(m_plan.checkedCount(), 2);
}

TEST_F(PlanModelTest, aKeptFileAndItsCopiesAreNotTickedTogether)
{
    QSettings().clear();
    const FileEntry copy = entry("copy", 60);
    const FileEntry kept = entry("kept", 60);
    const FileEntry folder{m_home.folder(".cache/f"), 40 * 1024};
    const FileEntry inside = entry("f/inside", 16);
    CleanPlan plan;
    plan.sets = {{{kept.path, {}}, {copy.path}}, {{m_home.path(".cache/f/other"), {}}, {inside.path}}};
    plan.sections.push_back({"largeFiles", Message::verbatim("Large files"), "", {kept, folder}});
    plan.sections.push_back({"duplicates", Message::verbatim("Duplicate files"), "", {copy, inside}});
    WindowState::of(m_app).setSheet(PlanSheet{plan});
    EXPECT_EQ(marks(), QStringList({"1", "0", "2", "2", "2", "2"})) << "a folder with both moves as a whole";
    m_plan.toggle(1);
    EXPECT_EQ(marks(), QStringList({"2", "2", "2", "1", "0", "2"})) << "what was ticked last";
    m_plan.toggle(4);
    EXPECT_EQ(marks(), QStringList({"1", "0", "2", "2", "2", "2"}));
    m_plan.checkAll();
    EXPECT_EQ(marks(), QStringList({"1", "0", "2", "2", "2", "2"}));
    m_plan.uncheckAll();
    EXPECT_EQ(m_plan.checkedCount(), 0);
}

} // namespace orlen

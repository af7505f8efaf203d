#include "window/home/HomeModel.h"
#include "window/shell/WindowState.h"

#include "window/home/FindingListModel.h"
#include "window/lists/RatingValue.h"
#include "window/lists/Remembered.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

namespace {

AppModel::Options quick()
{
    AppModel::Options options;
    options.startup = AppModel::Startup::filesOnly;
    return options;
}

/// Safe: two caches and a log. Review: an old download. Shown only: what lies in the Trash.
void fill(const TempHome& home)
{
    home.fileOfSize(".cache/mozilla/data", 40'960'000);
    home.fileOfSize(".cache/chromium/data", 20'480'000);
    home.fileOfSize(".npm/_cacache/content/a", 8'192'000);
    home.fileOfSize(".local/share/Trash/files/old", 4'096'000);
}

void scan(AppModel& app)
{
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
}

} // namespace

class FindingListModelTest : public testing::Test {
protected:
    void SetUp() override
    {
        fill(m_home);
        scan(m_app);
    }

    [[nodiscard]] QVariant value(int row, FindingListModel::Role role) const
    {
        return m_cards.data(m_cards.index(row), static_cast<int>(role));
    }
    [[nodiscard]] int rowOf(const char* id) const
    {
        for (int row = 0; row < m_cards.rowCount(); ++row) {
            if (value(row, FindingListModel::Role::findingId) == QString::fromLatin1(id))
                return row;
        }
        return -1;
    }

    TempHome m_home;
    AppModel m_app{quick()};
    FindingListModel m_cards{m_app};
    QAbstractItemModelTester m_tester{&m_cards, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(FindingListModelTest, tellsHowMuchIsSelected)
{
    using enum FindingListModel::Role;
    const int caches = rowOf("caches");
    ASSERT_GE(caches, 0);
    EXPECT_EQ(value(caches, size).toString(), "61.4 MB");
    EXPECT_EQ(value(caches, count).toString(), "2 items");
    EXPECT_EQ(value(caches, selected).toString(), "61.4 MB");
    EXPECT_EQ(value(caches, rating).value<RatingValue>().name, "safe");
}

TEST_F(FindingListModelTest, whatCannotBeCleanedHasNoRating)
{
    using enum FindingListModel::Role;
    const int trash = rowOf("trash");
    ASSERT_GE(trash, 0);
    EXPECT_FALSE(value(trash, cleanable).toBool());
    EXPECT_EQ(value(trash, rating).value<RatingValue>().name, "review");
    EXPECT_EQ(value(trash, selected).toString(), "");
}

TEST_F(FindingListModelTest, aSelectionTouchesOnlyTheCardItBelongsTo)
{
    const QSignalSpy changes(&m_cards, &QAbstractItemModel::dataChanged);
    const QSignalSpy resets(&m_cards, &QAbstractItemModel::modelReset);
    std::set<std::string> selection = m_app.results()->selection();
    ASSERT_EQ(selection.erase(m_home.path(".cache/chromium")), 1);
    m_app.results()->setSelection(selection);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.at(0).at(0).toModelIndex().row(), rowOf("caches"));
    EXPECT_EQ(value(rowOf("caches"), FindingListModel::Role::selected).toString(), "41 MB");
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(FindingListModelTest, aSelectionMadeInASheetShowsWhenItCloses)
{
    const int caches = rowOf("caches");
    WindowState::of(m_app).setSheet(FindingSheet{"caches"});
    m_app.results()->setSelection({});
    EXPECT_EQ(value(caches, FindingListModel::Role::selected).toString(), "61.4 MB");
    WindowState::of(m_app).setSheet(std::nullopt);
    EXPECT_EQ(value(caches, FindingListModel::Role::selected).toString(), "");
}

TEST_F(FindingListModelTest, whatIsCleanedTakesOnlyItsOwnCardAway)
{
    const int cards = m_cards.rowCount();
    const int npm = rowOf("npm");
    ASSERT_GE(npm, 0);
    const QSignalSpy removals(&m_cards, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&m_cards, &QAbstractItemModel::modelReset);
    std::set<std::string> gone{m_home.path(".cache/mozilla")};
    for (const FileEntry& entry : m_app.results()->findings()[static_cast<std::size_t>(npm)].items)
        gone.insert(entry.path);
    m_app.results()->removeFromFindings(gone);
    ASSERT_EQ(removals.count(), 1);
    EXPECT_EQ(removals.at(0).at(1).toInt(), npm);
    EXPECT_EQ(m_cards.rowCount(), cards - 1);
    EXPECT_EQ(value(rowOf("caches"), FindingListModel::Role::size).toString(), "20.5 MB");
    EXPECT_EQ(resets.count(), 0);
    m_app.results()->removeFromFindings({m_home.path(".cache/chromium")});
    EXPECT_EQ(rowOf("caches"), -1);
}

TEST_F(FindingListModelTest, anotherScanShowsItsOwnFindings)
{
    m_app.results()->removeFromFindings({m_home.path(".cache/mozilla"), m_home.path(".cache/chromium")});
    ASSERT_EQ(rowOf("caches"), -1);
    m_app.results()->resetToIdle();
    scan(m_app);
    EXPECT_GE(rowOf("caches"), 0);
    EXPECT_EQ(m_cards.rowCount(), static_cast<int>(m_app.results()->findings().size()));
}

TEST(HomeModelTest, followsAScanAndLeadsBackToItsResults)
{
    const TempHome home;
    fill(home);
    AppModel app(quick());
    HomeModel model(app);
    EXPECT_FALSE(model.hasFindings());
    app.results()->showResults();
    EXPECT_EQ(model.phase(), HomeModel::Idle) << "there are no results to show";
    scan(app);
    EXPECT_EQ(model.phase(), HomeModel::Results);
    EXPECT_TRUE(model.hasSafe());
    EXPECT_EQ(model.heroText(), "You can safely free 69.6 MB");
    EXPECT_EQ(model.totalText(), "69.6 MB") << "the Trash does not count";
    EXPECT_EQ(model.selectedText(), "3 items\u00a0· 69.6 MB");
    EXPECT_EQ(model.ageText(), "Scanned just now");
    EXPECT_EQ(model.outdatedText(), "");
    EXPECT_EQ(model.unreadableText(), "");
    for (const char* name : {"Documents/one", "Documents/two"})
        TempHome::setMode(home.folder(name), 0);
    app.results()->resetToIdle();
    scan(app);
    EXPECT_EQ(model.unreadableText(), "2 folders could not be read");
    EXPECT_EQ(model.unreadableFolders(), "~/Documents/one\n~/Documents/two");
    app.results()->resetToIdle();
    EXPECT_EQ(model.phase(), HomeModel::Idle);
    app.results()->showResults();
    EXPECT_EQ(model.phase(), HomeModel::Results);
}

TEST(HomeModelTest, reviewsOnlyWhatIsSelected)
{
    const TempHome home;
    fill(home);
    AppModel app(quick());
    HomeModel model(app);
    scan(app);
    app.results()->setSelection({});
    EXPECT_FALSE(model.hasSelection());
    model.review();
    EXPECT_FALSE(WindowState::of(app).sheet().has_value());
    app.results()->setSelection({home.path(".cache/mozilla")});
    model.review();
    ASSERT_TRUE(WindowState::of(app).sheet().has_value());
    const CleanPlan& plan = std::get<PlanSheet>(*WindowState::of(app).sheet()).plan;
    ASSERT_EQ(plan.sections.size(), 1);
    EXPECT_EQ(plan.sections[0].entries.size(), 1);
}

TEST(HomeModelTest, selectsEverythingSafeBesidesWhatIsSelected)
{
    const TempHome home;
    fill(home);
    AppModel app(quick());
    HomeModel model(app);
    scan(app);
    EXPECT_TRUE(model.isSafeSelected());
    const std::set<std::string> safe = app.results()->selection();
    app.results()->setSelection({home.path(".cache/mozilla"), home.path("Documents/own")});
    EXPECT_FALSE(model.isSafeSelected());
    app.results()->selectSafe();
    EXPECT_TRUE(model.isSafeSelected());
    EXPECT_EQ(app.results()->selection().size(), safe.size() + 1) << "what was selected stays so";
    app.results()->removeFromFindings({home.path(".cache/mozilla")});
    EXPECT_TRUE(model.isSafeSelected());
}

TEST(HomeModelTest, selectsWhatIsSafeAmongThingsToReview)
{
    const TempHome home;
    const TimePoint old = std::chrono::system_clock::now() - std::chrono::days(90);
    TempHome::setTimes(home.fileOfSize("Downloads/viewer.deb", 300 * 1024), old, old);
    AppModel app(quick());
    const HomeModel model(app);
    scan(app);
    ASSERT_GT(app.results()->safeBytes(), 0);
    EXPECT_EQ(app.results()->selectedAmount().bytes, 0) << "not by itself";
    EXPECT_FALSE(model.isSafeSelected());
    app.results()->selectSafe();
    EXPECT_EQ(app.results()->selectedAmount().bytes, app.results()->safeBytes());
    EXPECT_TRUE(model.isSafeSelected());
}

TEST(HomeModelTest, asksForAnotherScanOnceAnotherThresholdIsChosen)
{
    const TempHome home;
    fill(home);
    AppModel app(quick());
    HomeModel model(app);
    scan(app);
    model.setThreshold(0);
    EXPECT_EQ(model.outdatedText(), "Scan again to find large files of the new size.");
    EXPECT_EQ(Remembered::largeThresholdMB(), 100);
    scan(app);
    EXPECT_EQ(model.outdatedText(), "");
    model.setThreshold(1);
    model.setThreshold(0);
    EXPECT_EQ(model.outdatedText(), "") << "that is what the scan looked for";
}

TEST(HomeModelTest, offersTheThresholdsOfLargeFiles)
{
    const TempHome home;
    AppModel app(quick());
    HomeModel model(app);
    EXPECT_EQ(model.thresholds().join(", "), "100 MB, 250 MB, 500 MB, 1 GB, 2 GB");
    EXPECT_EQ(model.threshold(), 2);
    model.setThreshold(4);
    EXPECT_EQ(app.results()->largeThresholdMB(), 2000);
    model.setThreshold(5);
    model.setThreshold(-1);
    EXPECT_EQ(model.threshold(), 4);
    app.results()->setLargeThresholdMB(750);
    EXPECT_EQ(model.threshold(), -1);
    EXPECT_EQ(model.thresholdText(), "750 MB");
}

} // namespace orlen

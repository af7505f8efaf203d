#include "window/findings/EntryListModel.h"
#include "window/shell/Notices.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSettings>
#include <QSignalSpy>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const AppModel::Options kCommand{AppModel::Startup::filesOnly, AppModel::Access::writer, {}};

/// Caches of 400, 300, 200 and 100 KiB after a scan; the third is one to review.
class EntryListModelTest : public testing::Test {
protected:
    EntryListModelTest() : m_app(kCommand)
    {
        QSettings().clear();
        m_home.fileOfSize(".cache/zig", 400 * 1024);
        m_home.fileOfSize(".cache/babl/pages", 300 * 1024);
        m_home.fileOfSize(".cache/spotify", 200 * 1024);
        m_home.fileOfSize(".cache/GIMP", 100 * 1024);
        const TimePoint now = std::chrono::system_clock::now();
        TempHome::setTimes(m_home.path(".cache/GIMP"), now - 24h, now - 24h);
        TempHome::setTimes(m_home.path(".cache/zig"), now - 48h, now - 48h);
        m_app.results()->startScan();
        EXPECT_TRUE(waitUntil([&] { return m_app.results()->phase() == Phase::results; }));
        m_list.setFindingId("caches");
    }

    [[nodiscard]] QStringList shown(EntryListModel::Role role) const
    {
        QStringList texts;
        for (int row = 0; row < m_list.rowCount(); ++row)
            texts << m_list.data(m_list.index(row), static_cast<int>(role)).toString();
        return texts;
    }
    [[nodiscard]] RatingValue ratingAt(int row) const
    {
        return m_list.index(row).data(static_cast<int>(EntryListModel::Role::rating)).value<RatingValue>();
    }
    [[nodiscard]] QStringList names() const { return shown(EntryListModel::Role::name); }
    [[nodiscard]] QStringList marks() const { return shown(EntryListModel::Role::marked); }

    TempHome m_home;
    AppModel m_app;
    EntryListModel m_list{m_app};
    QAbstractItemModelTester m_tester{&m_list, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(EntryListModelTest, showsTheFindingLargestFirst)
{
    EXPECT_EQ(names(), QStringList({"zig", "babl", "spotify", "GIMP"}));
    EXPECT_EQ(marks(), QStringList({"true", "true", "false", "true"}));
    EXPECT_EQ(ratingAt(1).name, "safe");
    EXPECT_EQ(ratingAt(2).name, "review");
    EXPECT_EQ(shown(EntryListModel::Role::folder).first(), "~/.cache");
    EXPECT_EQ(m_list.header().title, "App caches");
    EXPECT_TRUE(m_list.header().reason.startsWith("Why Safe: Apps rebuild"));
    EXPECT_EQ(m_list.selectedText(), "3 of 4 selected\u00a0· 819 KB");
    EXPECT_EQ(m_list.shownState(), Qt::PartiallyChecked);
}

TEST_F(EntryListModelTest, sortsAndTurnsRound)
{
    m_list.sortBy(EntryListModel::ByName);
    EXPECT_EQ(names(), QStringList({"babl", "GIMP", "spotify", "zig"}));
    m_list.sortBy(EntryListModel::ByName);
    EXPECT_EQ(names(), QStringList({"zig", "spotify", "GIMP", "babl"}));
    EXPECT_EQ(marks(), QStringList({"true", "false", "true", "true"}));
    m_list.sortBy(EntryListModel::BySize);
    EXPECT_FALSE(m_list.isReversed());
    EXPECT_EQ(names().first(), "zig");
    m_list.sortBy(EntryListModel::ByDate);
    EXPECT_LT(names().indexOf("GIMP"), names().indexOf("zig"));
    m_list.sortBy(EntryListModel::ByName);
    m_list.sortBy(EntryListModel::ByName);
    EntryListModel later(m_app);
    later.setFindingId("caches");
    EXPECT_EQ(later.key(), EntryListModel::ByName);
    EXPECT_TRUE(later.isReversed()) << "the order is remembered";
    later.setFindingId("npm");
    EXPECT_EQ(later.key(), EntryListModel::BySize) << "for each finding by itself";
}

TEST_F(EntryListModelTest, filtersAndSelectsOnlyWhatIsShown)
{
    m_list.setFilter("  Im ");
    EXPECT_EQ(names(), QStringList({"GIMP"}));
    EXPECT_EQ(m_list.shownState(), Qt::Checked);
    m_list.toggleShown();
    EXPECT_EQ(m_list.shownState(), Qt::Unchecked);
    EXPECT_EQ(m_list.selectedCount(), 2);
    m_list.setFilter("cache sp");
    EXPECT_EQ(names(), QStringList({"spotify"}));
    m_list.setFilter("nothing like it");
    EXPECT_EQ(m_list.shownState(), Qt::Unchecked);
    m_list.selectShown();
    EXPECT_EQ(m_list.selectedCount(), 2);
    m_list.setFilter("");
    EXPECT_EQ(marks(), QStringList({"true", "true", "false", "false"}));
}

TEST(KeepRowsTest, areTickedOneByOneAndTheNoticeSaysSo)
{
    const TempHome home;
    const TimePoint old = std::chrono::system_clock::now() - 24h * 90;
    for (const char* name : {"Downloads/setup notes.txt", "Downloads/invoice 2023.pdf"})
        TempHome::setTimes(home.fileOfSize(name, 100'000), old, old);
    AppModel app(kCommand);
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EntryListModel list(app);
    list.setFindingId("oldDownloads");
    ASSERT_EQ(list.entryCount(), 2);
    const QSignalSpy notices(&WindowState::of(app), &WindowState::said);
    list.toggleShown();
    EXPECT_EQ(app.results()->selection().count(home.path("Downloads/setup notes.txt")), 1U);
    EXPECT_EQ(app.results()->selection().count(home.path("Downloads/invoice 2023.pdf")), 0U);
    ASSERT_EQ(notices.count(), 1);
    EXPECT_TRUE(notices[0][0].toString().startsWith("1 item stays unticked"));
    list.toggleShown();
    EXPECT_EQ(list.selectedCount(), 0) << "all that can be is ticked, so this unticks";
    list.setFilter("invoice");
    list.toggleShown();
    EXPECT_EQ(list.selectedCount(), 0);
    EXPECT_EQ(notices.count(), 2) << "nothing happens, and the notice says why";
    list.toggle(0);
    EXPECT_EQ(list.selectedCount(), 1);
    list.toggleShown();
    EXPECT_EQ(list.selectedCount(), 0);
    EXPECT_EQ(notices.count(), 2);
}

TEST_F(EntryListModelTest, selectsWithOneWordToTheApplication)
{
    const QSignalSpy changes(m_app.results(), &Results::selectionChanged);
    m_list.toggle(0);
    EXPECT_FALSE(m_app.results()->selection().contains(m_home.path(".cache/zig")));
    m_list.selectShown();
    EXPECT_THAT(m_app.results()->selection(), SizeIs(4));
    EXPECT_EQ(changes.size(), 2);
    m_list.selectShown();
    m_list.toggle(-1);
    m_list.toggle(4);
    EXPECT_EQ(changes.size(), 2);
    m_app.results()->setSelection({m_home.path(".cache/GIMP")});
    EXPECT_EQ(marks(), QStringList({"false", "false", "false", "true"}));
    EXPECT_EQ(m_list.selectedSizeText(), "102 KB");
}

TEST_F(EntryListModelTest, losesWhatWasMovedRowByRowAndKeepsItsTexts)
{
    m_list.sortBy(EntryListModel::ByName);
    const QSignalSpy removed(&m_list, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy reset(&m_list, &QAbstractItemModel::modelReset);
    m_app.results()->removeFromFindings({m_home.path(".cache/GIMP"), m_home.path(".cache/zig")});
    EXPECT_EQ(names(), QStringList({"babl", "spotify"}));
    EXPECT_EQ(marks(), QStringList({"true", "false"}));
    EXPECT_EQ(removed.size(), 2);
    EXPECT_EQ(m_list.selectedText(), "1 of 2 selected\u00a0· 307 KB");
    m_app.results()->removeFromFindings({m_home.path(".cache/babl"), m_home.path(".cache/spotify")});
    EXPECT_EQ(m_list.rowCount(), 0);
    EXPECT_EQ(m_list.header().title, "App caches");
    EXPECT_TRUE(reset.isEmpty());
}

TEST_F(EntryListModelTest, learnsWhatIsAFolderLater)
{
    EXPECT_EQ(shown(EntryListModel::Role::symbol), QStringList({"doc", "doc", "doc", "doc"}));
    const QSignalSpy changes(&m_list, &QAbstractItemModel::dataChanged);
    ASSERT_TRUE(waitUntil([&] { return !changes.isEmpty(); }));
    EXPECT_EQ(shown(EntryListModel::Role::symbol), QStringList({"doc", "folder", "doc", "doc"}));
}

TEST_F(EntryListModelTest, theTrashCannotBeSelected)
{
    m_home.fileOfSize(".local/share/Trash/files/thrown", 4096);
    m_app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return m_app.results()->phase() == Phase::results; }));
    m_list.setFindingId("trash");
    EXPECT_FALSE(m_list.header().isCleanable);
    EXPECT_EQ(m_list.selectedText(), "1 item\u00a0· 4 KB");
    const auto before = m_app.results()->selection();
    m_list.selectShown();
    EXPECT_EQ(m_app.results()->selection(), before);
    m_list.setFindingId("blurry");
    EXPECT_EQ(m_list.header().title, "Blurry shots");
    EXPECT_EQ(m_list.rowCount(), 0);
}

TEST(SelectionTest, partsOfARepositoryAreTickedOnlyOneByOne)
{
    const TempHome home;
    home.fileOfSize("a", 2'048'000);
    const std::string loose = home.fileOfSize("longer name", 2'048'000);
    const std::string tracked = home.fileOfSize("src/project/assets/a", 2'048'000);
    home.folder("src/project/.git");
    AppModel app(kCommand);
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EntryListModel list(app);
    list.setFindingId("duplicates");
    ASSERT_EQ(list.rowCount(), 2);
    list.toggleShown();
    EXPECT_THAT(app.results()->selection(), ElementsAre(loose));
    list.toggleShown();
    EXPECT_THAT(app.results()->selection(), IsEmpty());
    list.toggle(1);
    EXPECT_THAT(app.results()->selection(), ElementsAre(tracked));
}

TEST(SelectionTest, aKeptFileAndItsCopiesAreNotTickedTogether)
{
    const TempHome home;
    const std::string kept = home.fileOfSize("Videos/film", 2'048'000);
    const std::string copy = home.fileOfSize("Videos/holidays/film", 2'048'000);
    AppModel app(kCommand);
    const Notices notices(app);
    app.results()->setLargeThresholdMB(1);
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EntryListModel duplicates(app);
    duplicates.setFindingId("duplicates");
    EntryListModel large(app);
    large.setFindingId("largeFiles");
    ASSERT_EQ(large.rowCount(), 2);
    duplicates.selectShown();
    EXPECT_TRUE(notices.text().isEmpty());
    const int row = large.pathAt(0) == duplicates.pathAt(0) ? 1 : 0;
    large.toggle(row);
    EXPECT_THAT(app.results()->selection(), ElementsAre(kept));
    EXPECT_EQ(duplicates.selectedCount(), 0);
    EXPECT_EQ(large.selectedCount(), 1);
    EXPECT_TRUE(notices.text().startsWith("One file of each set stays")) << notices.text().toStdString();
    large.selectShown();
    EXPECT_THAT(app.results()->selection(), ElementsAre(copy)) << "the copies rather than the kept one";
    EXPECT_EQ(large.selectedCount(), 1);
    const QVariant note = large.data(large.index(row), static_cast<int>(EntryListModel::Role::note));
    EXPECT_TRUE(note.toString().contains("Orlen keeps this one"));
}

TEST(SelectionTest, whatIsTickedIsWhatMoves)
{
    const TempHome home;
    home.fileOfSize("Documents/report.txt", 2'048'000);
    const std::string both = home.fileOfSize("Downloads/both.txt", 2'048'000);
    const std::string inside = home.fileOfSize("Downloads/folder/inside.txt", 2'048'000);
    const std::string folder = home.path("Downloads/folder");
    const TimePoint old = std::chrono::system_clock::now() - 24h * 90;
    for (const std::string& path : {both, inside, folder})
        TempHome::setTimes(path, old, old);
    AppModel app(kCommand);
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EntryListModel downloads(app);
    EntryListModel duplicates(app);
    const auto follow = [&](EntryListModel& list, const char* id) {
        list.setFindingId(QString::fromLatin1(id));
        ASSERT_EQ(list.rowCount(), 2);
    };
    follow(downloads, "oldDownloads");
    follow(duplicates, "duplicates");
    downloads.selectShown();
    EXPECT_EQ(duplicates.selectedCount(), 2) << "ticked in one list, ticked in all";
    EXPECT_EQ(app.results()->selectedAmount().items, 2);
    EXPECT_EQ(app.results()->selectedAmount().bytes,
              app.results()->selectedSize(app.results()->findings()[0]));
    const std::vector<std::string> one{inside};
    app.results()->deselect(one);
    EXPECT_THAT(app.results()->selection(), ElementsAre(both)) << "the folder would take it along";
    EXPECT_EQ(downloads.selectedCount(), 1);
    app.results()->setSelection({folder});
    EXPECT_THAT(app.results()->selection(), ElementsAre(folder, inside));
    EXPECT_THAT(app.results()->scanPlan().sections, SizeIs(2)) << "everything that goes along is shown";
}

TEST(SelectionTest, isAddedToAndTakenFromWithOneSignal)
{
    const TempHome home;
    AppModel app(kCommand);
    const QSignalSpy changes(app.results(), &Results::selectionChanged);
    const std::vector<std::string> paths{"/a", "/b"};
    app.results()->select(paths);
    app.results()->select(paths);
    EXPECT_THAT(app.results()->selection(), ElementsAre("/a", "/b"));
    EXPECT_EQ(changes.size(), 1);
    app.results()->deselect(std::vector<std::string>{"/b", "/never"});
    EXPECT_THAT(app.results()->selection(), ElementsAre("/a"));
    app.results()->deselect(std::vector<std::string>{"/b"});
    app.results()->select({});
    EXPECT_EQ(changes.size(), 2);
}

} // namespace orlen

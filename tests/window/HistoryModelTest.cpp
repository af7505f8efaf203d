#include "window/history/HistoryModel.h"
#include "window/history/RecordItemsModel.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "clean/Persist.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <cstdio>

namespace orlen {

namespace {

using testing::ElementsAre;

const AppModel::Options kQuick{AppModel::Startup::filesOnly, AppModel::Access::writer, {}};

void clean(AppModel& app, const std::vector<std::string>& paths, const std::string& title)
{
    CleanPlan plan;
    plan.title = Message::verbatim(title);
    plan.sections.push_back({"caches", {}, "internaldrive.fill", {}});
    for (const std::string& path : paths)
        plan.sections.front().entries.push_back({path, 4096});
    app.cleanUps()->confirm(plan);
    ASSERT_TRUE(
        waitUntil([&] { return app.cleanUps()->cleaning() && app.cleanUps()->cleaning()->finished; }));
}

template <typename Model>
std::vector<std::string> column(const Model& model, typename Model::Role role)
{
    std::vector<std::string> values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.push_back(model.data(model.index(row), static_cast<int>(role)).toString().toStdString());
    return values;
}

} // namespace

TEST(HistoryModelTest, aNewCleanUpComesFirstAndARestoreChangesItsRowOnly)
{
    const TempHome home;
    AppModel app(kQuick);
    HistoryModel history(app);
    const QAbstractItemModelTester tester(&history, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(history.rowCount(), 0);
    clean(app, {home.file(".cache/a"), home.file(".cache/b"), home.path("gone")}, "Smart Scan clean-up");
    QSignalSpy inserted(&history, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&history, &QAbstractItemModel::modelReset);
    clean(app, {home.file(".config/viewer")}, "Uninstall Viewer");
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_THAT(column(history, HistoryModel::Role::title),
                ElementsAre("Uninstall Viewer", "Smart Scan clean-up"));
    EXPECT_THAT(column(history, HistoryModel::Role::summary),
                ElementsAre("1 item", "2 items\u00a0· 1 couldn't be moved"));

    home.file(".cache/b", "taken");
    QSignalSpy changed(&history, &QAbstractItemModel::dataChanged);
    QSignalSpy told(&WindowState::of(app), &WindowState::said);
    history.restore(1);
    const auto statusOf = [&](int row) {
        return history.data(history.index(row), static_cast<int>(HistoryModel::Role::status)).toInt();
    };
    EXPECT_EQ(statusOf(1), HistoryModel::Restoring);
    EXPECT_EQ(statusOf(0), HistoryModel::Restorable);
    history.restore(1); // refused meanwhile
    ASSERT_TRUE(waitUntil([&] { return !told.isEmpty(); }));
    EXPECT_TRUE(told.front().front().toString().startsWith("Restored 1; 1 couldn't be restored"));
    EXPECT_EQ(statusOf(1), HistoryModel::Restorable);
    EXPECT_EQ(column(history, HistoryModel::Role::summary)[1],
              "2 items\u00a0· 1 restored\u00a0· 1 couldn't be moved");
    for (const QList<QVariant>& signal : changed)
        EXPECT_EQ(signal.front().toModelIndex().row(), 1);
    changed.clear();
    history.restore(0);
    ASSERT_TRUE(waitUntil([&] { return told.size() == 2; }));
    EXPECT_EQ(statusOf(0), HistoryModel::Restored);
    EXPECT_TRUE(reset.isEmpty());
}

TEST(HistoryModelTest, whatHasLeftTheTrashIsNotOfferedAndCountsAsFreed)
{
    const TempHome home;
    AppModel app(kQuick);
    clean(app, {home.file(".cache/a"), home.file(".cache/b")}, "First");
    clean(app, {home.file(".cache/c")}, "Second");
    HistoryModel history(app);
    const auto totals = [&] { return history.total().toStdString(); };
    ASSERT_TRUE(waitUntil([&] { return !history.total().isEmpty(); }));
    EXPECT_EQ(totals(), "0 bytes freed in all. 12 KB more once you empty the Trash.");
    const std::vector<CleanRecord> records = app.cleanUps()->history();
    ASSERT_EQ(std::remove(records[0].items[0].trashed.c_str()), 0);                                // emptied
    ASSERT_EQ(std::rename(records[1].items[0].trashed.c_str(), home.path(".cache/a").c_str()), 0); // put back
    history.lookUp();
    const auto statusOf = [&](int row) {
        return history.data(history.index(row), static_cast<int>(HistoryModel::Role::status)).toInt();
    };
    ASSERT_TRUE(waitUntil([&] { return statusOf(0) == HistoryModel::Gone; }));
    EXPECT_EQ(statusOf(1), HistoryModel::Restorable) << "one of two is in the Trash";
    EXPECT_EQ(column(history, HistoryModel::Role::summary)[0], "1 item\u00a0· No longer in the Trash");
    EXPECT_EQ(totals(), "4 KB freed in all. 4 KB more once you empty the Trash.");
    history.restore(0);
    EXPECT_FALSE(app.cleanUps()->isRestoring(records[0].id));
}

TEST(HistoryModelTest, searchesTitlesAndPathsOfAllRecordsAndSorts)
{
    const TempHome home;
    AppModel app(kQuick);
    clean(app, {home.file(".cache/Films/Alps one"), home.file(".cache/b")}, "Large");
    clean(app, {home.file(".config/viewer")}, "Uninstall Viewer");
    HistoryModel history(app);
    const QAbstractItemModelTester tester(&history, QAbstractItemModelTester::FailureReportingMode::Fatal);
    struct Case {
        const char* query;
        std::vector<std::string> titles;
    };
    const Case cases[] = {{"", {"Uninstall Viewer", "Large"}},
                          {"alps FILMS", {"Large"}},
                          {"uninstall", {"Uninstall Viewer"}},
                          {"~/.c", {"Uninstall Viewer", "Large"}},
                          {"films viewer", {}},
                          {" ", {"Uninstall Viewer", "Large"}}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.query);
        history.setQuery(QString::fromUtf8(c.query));
        EXPECT_EQ(column(history, HistoryModel::Role::title), c.titles);
    }
    history.setOrder(HistoryModel::BySize);
    EXPECT_THAT(column(history, HistoryModel::Role::title), ElementsAre("Large", "Uninstall Viewer"));
    RecordItemsModel items(app);
    items.setRecordId(history.idAt(0));
    items.setQuery(QStringLiteral("alps"));
    EXPECT_THAT(column(items, RecordItemsModel::Role::name), ElementsAre("Alps one"));
    items.setQuery(QStringLiteral("large"));
    EXPECT_EQ(items.rowCount(), 2) << "found by its title, it shows all";
}

TEST(HistoryModelTest, aProgramThatMayNotWriteRestoresNothing)
{
    const TempHome home;
    {
        AppModel app(kQuick);
        clean(app, {home.file(".cache/a")}, "Smart Scan clean-up");
    }
    AppModel reader({AppModel::Startup::filesOnly, AppModel::Access::reader, {}});
    HistoryModel history(reader);
    ASSERT_EQ(history.rowCount(), 1);
    history.restore(0);
    EXPECT_FALSE(reader.cleanUps()->isRestoring(reader.cleanUps()->history().front().id));
    EXPECT_FALSE(TempHome::exists(home.path(".cache/a")));
}

TEST(RecordItemsModelTest, tellsWhereEachItemIsNow)
{
    const TempHome home;
    AppModel app(kQuick);
    clean(app, {home.file(".cache/a"), home.file(".cache/b"), home.file(".cache/c")}, "Some");
    RecordItemsModel items(app);
    const QAbstractItemModelTester tester(&items, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(items.rowCount(), 0);
    QSignalSpy changed(&items, &QAbstractItemModel::dataChanged);
    items.setRecordId(QString::fromStdString(app.cleanUps()->history().front().id.text()));
    EXPECT_THAT(column(items, RecordItemsModel::Role::name), ElementsAre("a", "b", "c"));
    EXPECT_THAT(column(items, RecordItemsModel::Role::folder),
                ElementsAre("~/.cache", "~/.cache", "~/.cache"));
    ASSERT_TRUE(waitUntil([&] { return !changed.isEmpty(); }));
    EXPECT_EQ(changed.size(), 1) << "three rows of the same change";
    EXPECT_EQ(column(items, RecordItemsModel::Role::statusText)[0], "In the Trash");

    // Somebody puts b back in the file manager, and something stands where c was.
    const TrashedItem b = app.cleanUps()->history().front().items[1];
    ASSERT_TRUE(
        Cleaner::restore({Uuid::random(), app.cleanUps()->history().front().date, "b", {b}, 0}).restored ==
        1);
    home.file(".cache/c", "taken");
    QSignalSpy reset(&items, &QAbstractItemModel::modelReset);
    ASSERT_TRUE(app.cleanUps()->startRestore(app.cleanUps()->history().front()));
    ASSERT_TRUE(
        waitUntil([&] { return !app.cleanUps()->isRestoring(app.cleanUps()->history().front().id); }));
    ASSERT_TRUE(
        waitUntil([&] { return column(items, RecordItemsModel::Role::statusText)[0] == "Restored"; }));
    EXPECT_THAT(column(items, RecordItemsModel::Role::statusText),
                ElementsAre("Restored", "No longer in the Trash", "Something is at the original place"));
    EXPECT_TRUE(reset.isEmpty());
}

TEST(RecordItemsModelTest, putsOneItemBackAndTellsWhyAnotherStays)
{
    const TempHome home;
    AppModel app(kQuick);
    clean(app, {home.file(".cache/a"), home.file(".cache/b")}, "Some");
    home.file(".cache/b", "taken");
    RecordItemsModel items(app);
    items.setRecordId(QString::fromStdString(app.cleanUps()->history().front().id.text()));
    const auto restorable = [&](int row) {
        return items.data(items.index(row), static_cast<int>(RecordItemsModel::Role::restorable)).toBool();
    };
    ASSERT_TRUE(waitUntil([&] { return restorable(0) && restorable(1); }));
    items.activate(0);
    EXPECT_FALSE(restorable(1)) << "one after the other";
    ASSERT_TRUE(
        waitUntil([&] { return column(items, RecordItemsModel::Role::statusText)[0] == "Restored"; }));
    EXPECT_TRUE(TempHome::exists(home.path(".cache/a")));
    EXPECT_FALSE(app.cleanUps()->history().front().items[1].restored);
    items.activate(1);
    ASSERT_TRUE(waitUntil([&] {
        return column(items, RecordItemsModel::Role::statusText)[1] == "Something is at the original place";
    }));
    EXPECT_EQ(column(items, RecordItemsModel::Role::remedy)[1],
              "Move or rename what is there, then try again.");
    EXPECT_TRUE(restorable(1));
    EXPECT_EQ(TempHome::content(home.path(".cache/b")), "taken");
}

} // namespace orlen

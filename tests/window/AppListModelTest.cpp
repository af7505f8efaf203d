#include "window/apps/AppListModel.h"

#include "app/EventLoop.h"
#include "window/AppsOnDisk.h"
#include "window/apps/AppOrderModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace orlen {

namespace {

using AppRole = AppListModel::Role;
constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

QStringList texts(const QAbstractItemModel& model, AppRole role)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row, 0).data(static_cast<int>(role)).toString();
    return texts;
}

bool isSettled(const AppListModel& apps)
{
    return !apps.isLoading() && !apps.isMeasuring();
}

} // namespace

TEST(AppListModelTest, measuresWhatItListsAndReadsItAgainAfterACleanUp)
{
    const TempHome home;
    AppsOnDisk::image(home, "Applications/Kite.AppImage");
    const std::string gone = AppsOnDisk::image(home, "Applications/Lark.AppImage");
    AppsOnDisk::image(home, "Downloads/Wren-2.1-x86_64.AppImage");
    AppModel app({AppModel::Startup::full, AppModel::Access::writer, {}});
    AppListModel apps(app);
    const QAbstractItemModelTester tester(&apps, kFatal);
    ASSERT_TRUE(waitUntil([&] { return isSettled(apps); }));
    EXPECT_EQ(texts(apps, AppRole::name), (QStringList{"Kite", "Lark", "Wren"}));
    EXPECT_EQ(texts(apps, AppRole::origin).back(), "AppImage\u00a0· ~/Downloads");
    EXPECT_EQ(texts(apps, AppRole::size), (QStringList{"41 KB", "41 KB", "41 KB"}));
    EXPECT_EQ(apps.summary(), "3 applications\u00a0· 123 KB");

    const QSignalSpy resets(&apps, &QAbstractItemModel::modelReset);
    const QSignalSpy removals(&apps, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy insertions(&apps, &QAbstractItemModel::rowsInserted);
    FileEntry entry;
    entry.path = gone;
    app.cleanUps()->confirm(
        {Uuid::random(), Message::verbatim("Uninstall Lark"), {{"app", {}, "app.fill", {entry}, {}}}});
    ASSERT_TRUE(waitUntil([&] { return apps.rowCount() == 2 && isSettled(apps); }));
    EXPECT_EQ(texts(apps, AppRole::name), (QStringList{"Kite", "Wren"}));
    EXPECT_EQ(removals.count(), 1);
    EXPECT_EQ(insertions.count() + resets.count(), 0);
}

TEST(AppListModelTest, canBeDestroyedWhileItMeasures)
{
    const TempHome home;
    for (int number = 0; number < 20; ++number)
        AppsOnDisk::image(home, "Applications/App" + std::to_string(number));
    AppModel app({});
    for (const bool waitsForNames : {false, true}) {
        AppListModel apps(app);
        ASSERT_TRUE(waitUntil([&] { return !waitsForNames || apps.rowCount() == 20; }));
    }
}

TEST(AppOrderModelTest, putsWhatWasNotUsedLongestFirst)
{
    const TempHome home;
    for (const char* name : {"Alder", "Birch", "Cedar"})
        home.file(std::string(".local/share/flatpak/app/org.example.") + name + "/current/active/metadata");
    home.fileOfSize(".var/app/org.example.Birch/a", 8'192);
    home.file(".local/share/gnome-shell/application_state",
              "<application-state><context id=''>"
              "<application id='org.example.Birch.desktop' last-seen='1750000000'/>"
              "<application id='org.example.Cedar.desktop' last-seen='1700000000'/></context>"
              "</application-state>");
    AppModel app({});
    AppListModel apps(app);
    AppOrderModel shown;
    shown.setList(&apps);
    shown.setOrder(AppOrderModel::ByUse);
    ASSERT_TRUE(waitUntil([&] { return apps.rowCount() == 3 && isSettled(apps); }));
    EXPECT_EQ(texts(shown, AppRole::name), (QStringList{"Cedar", "Birch", "Alder"}));
    const QStringList usage = texts(shown, AppRole::usage);
    EXPECT_TRUE(usage[0].startsWith("Last used ")) << usage[0].toStdString();
    EXPECT_TRUE(usage[1].startsWith("8 KB of it data")) << usage[1].toStdString();
    EXPECT_EQ(usage[2], "Last use unknown");
    EXPECT_TRUE(apps.summary().endsWith("20 KB")) << apps.summary().toStdString();
}

TEST(AppOrderModelTest, findsAllWordsOfASearchAndSortsBySize)
{
    const TempHome home;
    AppsOnDisk::image(home, "Applications/Alder Notes.AppImage");
    AppsOnDisk::image(home, "Downloads/Birch.AppImage");
    home.fileOfSize("opt/Cedar/data", 409'600);
    TempHome::setMode(home.file("opt/Cedar/cedar"), 0755);
    AppModel app({});
    AppListModel apps(app);
    AppOrderModel shown;
    const QAbstractItemModelTester tester(&shown, kFatal);
    shown.setList(&apps);
    shown.setOrder(AppOrderModel::BySize);
    ASSERT_TRUE(waitUntil([&] { return apps.rowCount() == 3 && isSettled(apps); }));
    EXPECT_EQ(texts(shown, AppRole::name), (QStringList{"Cedar", "Alder Notes", "Birch"}));
    EXPECT_EQ(shown.listRow(0), 2);

    struct Case {
        const char* query;
        QStringList names;
    };
    for (const Case& c : {Case{"BIRCH", {"Birch"}},
                          {"appimage  applications", {"Alder Notes"}},
                          {" ", {"Cedar", "Alder Notes", "Birch"}},
                          {"birch notes", {}},
                          {"(", {}}}) {
        SCOPED_TRACE(c.query);
        shown.setQuery(c.query);
        EXPECT_EQ(texts(shown, AppRole::name), c.names);
    }
    shown.setQuery({});
    EXPECT_EQ(shown.sources(), (QStringList{"All sources", "AppImage", "App folder"}));
    shown.setSource(1);
    EXPECT_EQ(texts(shown, AppRole::name), (QStringList{"Alder Notes", "Birch"}));
    shown.setSource(0);
    shown.setOrder(AppOrderModel::ByName);
    EXPECT_EQ(texts(shown, AppRole::name), (QStringList{"Alder Notes", "Birch", "Cedar"}));
}

} // namespace orlen

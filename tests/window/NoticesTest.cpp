#include "window/shell/Notices.h"

#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include "app/EventLoop.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTimer>

namespace orlen {

TEST(NoticesTest, showsOneAfterTheOtherWithAPauseBetween)
{
    const TempHome home;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    Notices notices(app);
    notices.setProperty("shortest", 30);
    QStringList shown;
    QObject::connect(&notices, &Notices::changed, [&] { shown << notices.text(); });
    for (const char* text : {"a", "", "b", "b", "a"})
        notices.say(QString::fromLatin1(text));
    EXPECT_EQ(notices.text(), "a");
    notices.dismiss();
    EXPECT_EQ(notices.text(), "") << "nothing follows at once";
    notices.dismiss();
    ASSERT_TRUE(waitUntil([&] { return shown.size() == 4; }));
    EXPECT_EQ(shown, QStringList({"a", "", "b", ""})) << "what is shown already is not said again";
}

TEST(NoticesTest, aSentenceStaysWhileItIsReadOrHeld)
{
    const TempHome home;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    Notices notices(app);
    notices.setProperty("shortest", 1);
    QElapsedTimer timer;
    timer.start();
    notices.say(QStringLiteral("ten chars."));
    ASSERT_TRUE(waitUntil([&] { return notices.text().isEmpty(); }));
    EXPECT_GE(timer.elapsed(), 700) << "long enough for its length";
    notices.say(QStringLiteral("b"));
    ASSERT_TRUE(waitUntil([&] { return !notices.text().isEmpty(); }));
    notices.setHeld(true);
    notices.say(QStringLiteral("c"));
    timer.start();
    QTimer::singleShot(450, &notices, [] {}); // wakes the event loop
    ASSERT_TRUE(waitUntil([&] { return timer.elapsed() > 400; }));
    EXPECT_EQ(notices.text(), "b");
    notices.setHeld(false);
    ASSERT_TRUE(waitUntil([&] { return notices.text() == "c"; }));
}

TEST(NoticesTest, onlyTheLatestChangeCanBeUndone)
{
    const TempHome home;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    Notices notices(app);
    QStringList undone;
    for (const char* text : {"a", "b", "c"})
        WindowState::of(app).say(QString::fromLatin1(text), [&undone, text] { undone << text; });
    ASSERT_TRUE(waitUntil([&] { return notices.text() == "c"; })) << notices.text().toStdString();
    ASSERT_TRUE(notices.hasUndo());
    notices.undo();
    notices.undo();
    EXPECT_EQ(undone, QStringList("c"));
    EXPECT_EQ(notices.text(), "");
}

TEST(NoticesTest, whatIsThereForLongLetsOthersPassAndIsTakenBack)
{
    const TempHome home;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    Notices notices(app);
    notices.setProperty("shortest", 30);
    WindowState& window = WindowState::of(app);
    bool isUndone = false;
    window.say(
        "long", [&] { isUndone = true; }, std::chrono::minutes(1));
    ASSERT_TRUE(notices.isLasting() && notices.hasUndo());
    notices.say(QStringLiteral("a"));
    ASSERT_TRUE(waitUntil([&] { return notices.text() == "a"; }));
    EXPECT_FALSE(notices.isLasting() || notices.hasUndo());
    ASSERT_TRUE(waitUntil([&] { return notices.text() == "long"; })) << "it comes back";
    notices.undo();
    EXPECT_TRUE(isUndone);
    EXPECT_EQ(notices.text(), "");
    window.say(
        "short", [] {}, std::chrono::milliseconds(50));
    ASSERT_TRUE(waitUntil([&] { return notices.text() == "short"; }));
    ASSERT_TRUE(waitUntil([&] { return notices.text().isEmpty(); })) << "it goes by itself";
    window.say(
        "again", [] {}, std::chrono::minutes(1));
    ASSERT_TRUE(waitUntil([&] { return notices.text() == "again"; }));
    window.unsay("other");
    EXPECT_EQ(notices.text(), "again");
    window.unsay("again");
    EXPECT_EQ(notices.text(), "");
}

TEST(NoticesTest, tellsOfAPathThatCannotBeShown)
{
    const TempHome home;
    TempHome::setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    TempHome::setVariable("PATH", home.folder("bin"));
    const Reveal reveal;
    AppModel app({.startup = AppModel::Startup::filesOnly});
    Notices notices(app);
    Reveal::show(home.path("film.mkv"));
    ASSERT_TRUE(waitUntil([&] { return notices.hasPath(); }));
    const QString path = QString::fromStdString(home.path("film.mkv"));
    EXPECT_EQ(notices.text(), "No program could show this item: " + path);
    notices.copyPath();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), path);
}

TEST(NoticesTest, beginsWithWhatTheStartFound)
{
    const TempHome home;
    (void)home.file(".local/share/Orlen/history.json", "[{}]");
    AppModel app({.startup = AppModel::Startup::filesOnly});
    const Notices notices(app);
    EXPECT_TRUE(notices.text().contains("history.unreadable-")) << notices.text().toStdString();
}

} // namespace orlen

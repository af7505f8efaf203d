#include "window/shell/DesktopPresence.h"

#include "FakeDesktop.h"
#include "app/EventLoop.h"
#include "support/TempHome.h"
#include "window/shell/Window.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>

#include <optional>

namespace orlen {

namespace {

/// The whole window, with a desktop that has a tray and shows notices.
class DesktopPresenceTest : public testing::Test {
protected:
    DesktopPresenceTest()
    {
        Window::prepare();
        m_window = Window::load(m_engine, m_app);
        m_presence.emplace(QDBusConnection::sessionBus(), m_app, m_engine, *m_window);
    }

    void clickTray()
    {
        QDBusMessage click =
            QDBusMessage::createMethodCall(QDBusConnection::sessionBus().baseService(), "/StatusNotifierItem",
                                           "org.kde.StatusNotifierItem", "Activate");
        click << 50 << 60;
        (void)answered(m_tray.bus(), click);
    }

    [[nodiscard]] QWindow* panel() const
    {
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            if (window != m_window && window->isVisible())
                return window;
        }
        return nullptr;
    }

    void press(const char* button)
    {
        ASSERT_NE(panel(), nullptr);
        auto* found = panel()->findChild<QQuickItem*>(button);
        ASSERT_NE(found, nullptr);
        QMetaObject::invokeMethod(found, "clicked");
    }

    const TempHome m_home;
    FakeTray m_tray{true};
    FakeNotices m_notices;
    AppModel m_app{{}};
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
    std::optional<DesktopPresence> m_presence;
};

} // namespace

TEST_F(DesktopPresenceTest, theSmallWindowOpensAndClosesWithAClickAndNeverOutlivesTheMainOne)
{
    ASSERT_NE(m_window, nullptr);
    ASSERT_TRUE(waitUntil([&] { return !m_tray.items().isEmpty(); }));
    EXPECT_EQ(panel(), nullptr);
    clickTray();
    ASSERT_NE(panel(), nullptr);
    EXPECT_GT(panel()->height(), 100);
    m_window->close();
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(DesktopPresenceTest, theSmallWindowLeadsToTheMainOne)
{
    m_window->hide();
    clickTray();
    press("trayOpen");
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(DesktopPresenceTest, theEndOfAScanIsToldWhenTheWindowIsNotInFront)
{
    m_window->hide();
    m_app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return !m_notices.shown().isEmpty(); }));
    EXPECT_EQ(m_notices.shown()[0].title, "Smart Scan finished");
    EXPECT_EQ(m_notices.shown()[0].text, "Nothing is rated Safe right now");

    m_app.results()->startScan();
    m_app.results()->cancelScan();
    ASSERT_TRUE(waitUntil([&] { return m_app.results()->phase() == Phase::idle; }));
    EXPECT_EQ(m_notices.shown().size(), 1) << "a cancelled scan is no news";
}

} // namespace orlen

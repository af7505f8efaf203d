#include "window/shell/WindowPlace.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWindow>

namespace orlen {

TEST(WindowPlaceTest, staysOnTheScreen)
{
    constexpr QRect room(0, 30, 1366, 738);
    EXPECT_EQ(WindowPlace::fitted({100, 100, 800, 600}, room), QRect(100, 100, 800, 600));
    EXPECT_EQ(WindowPlace::fitted({100, 100, 2000, 2000}, room), room);
    EXPECT_EQ(WindowPlace::fitted({1300, 700, 800, 600}, room), QRect(566, 168, 800, 600));
    EXPECT_EQ(WindowPlace::fitted({-4000, 0, 800, 600}, room), QRect(0, 30, 800, 600));
}

TEST(WindowPlaceTest, isRemembered)
{
    QSettings().remove(QStringLiteral("window"));
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    {
        WindowPlace place;
        EXPECT_EQ(place.size(), QSize(1100, 720).boundedTo(screen));
        QWindow window;
        place.setWindow(&window);
        window.resize(700, 650);
        window.show();
        QCoreApplication::processEvents();
        window.resize(710, 640);
        QCoreApplication::processEvents();
        window.hide();
        window.resize(300, 300);
    }
    EXPECT_EQ(WindowPlace().size(), QSize(710, 640));
    EXPECT_LE(WindowPlace().minimum().width(), screen.width());
    QSettings().remove(QStringLiteral("window"));
}

} // namespace orlen

#include "PrivateBus.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <cstdlib>

int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Orlen"));
    QGuiApplication::setOrganizationName(QStringLiteral("Orlen"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const orlen::PrivateBus bus;
    return RUN_ALL_TESTS();
}

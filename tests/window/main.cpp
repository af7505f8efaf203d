#include "window/preview/PictureReader.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <cstdlib>

/// The models need an application object and fonts, but no display.
int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Orlen"));
    QGuiApplication::setOrganizationName(QStringLiteral("Orlen"));
    orlen::PictureReader::setRecognizer(ORLEN_RECOGNIZER);
    return RUN_ALL_TESTS();
}

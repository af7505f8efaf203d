#include "journeys/Stage.h"
#include "window/preview/PictureReader.h"

#include <QtQuickTest>

#include <cstdlib>

int main(int argc, char** argv)
{
    // NOLINTBEGIN(concurrency-mt-unsafe): nothing runs yet
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    // NOLINTEND(concurrency-mt-unsafe)
    orlen::PictureReader::setRecognizer(ORLEN_RECOGNIZER);
    orlen::Stage stage;
    return quick_test_main_with_setup(argc, argv, "journeys", ORLEN_JOURNEYS, &stage);
}

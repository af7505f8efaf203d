#include "journeys/Stage.h"
#include "model/Words.h"
#include "window/preview/PictureReader.h"

#include <QtQuickTest>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Speaks the language of scripts/test-catalogue if the first arguments are "--words" and what to take it
/// for.
void takeWords(int& argc, char** argv)
{
    if (argc < 3 || std::string_view(argv[1]) != "--words")
        return;
    const std::vector<std::string> languages{argv[2]};
    orlen::Words::use(languages, ORLEN_TEST_WORDS);
    std::rotate(argv + 1, argv + 3, argv + argc);
    argc -= 2;
}

} // namespace

int main(int argc, char** argv)
{
    takeWords(argc, argv);
    // NOLINTBEGIN(concurrency-mt-unsafe): nothing runs yet
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    // NOLINTEND(concurrency-mt-unsafe)
    orlen::PictureReader::setRecognizer(ORLEN_RECOGNIZER);
    orlen::Stage stage;
    return quick_test_main_with_setup(argc, argv, "journeys", ORLEN_JOURNEYS, &stage);
}

#include "journeys/Stage.h"
#include "model/Words.h"
#include "platform/process/OwnProgram.h"
#include "window/preview/PictureReader.h"

#include <QtQuickTest>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Takes an option that comes first out of the arguments, and returns its value; empty if it is not there.
std::string take(std::string_view option, int& argc, char** argv)
{
    if (argc < 3 || argv[1] != option)
        return {};
    std::string value = argv[2];
    std::rotate(argv + 1, argv + 3, argv + argc);
    argc -= 2;
    return value;
}

} // namespace

int main(int argc, char** argv)
{
    // The language of scripts/test-catalogue, and what to take it for.
    if (const std::string language = take("--words", argc, argv); !language.empty())
        orlen::Words::use(std::vector{language}, ORLEN_TEST_WORDS);
    if (const std::string language = take("--language", argc, argv); !language.empty())
        orlen::Words::use(std::vector{language}, orlen::OwnProgram::sharedFolder("locale"));
    const std::string scale = take("--scale", argc, argv);
    // NOLINTBEGIN(concurrency-mt-unsafe): nothing runs yet
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_QUICK_BACKEND", "software", 1);
    // NOLINTEND(concurrency-mt-unsafe)
    orlen::PictureReader::setRecognizer(ORLEN_RECOGNIZER);
    orlen::Stage stage;
    if (!scale.empty())
        stage.setTextScale(std::stod(scale));
    return quick_test_main_with_setup(argc, argv, "journeys", ORLEN_JOURNEYS, &stage);
}

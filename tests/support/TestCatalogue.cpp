#include "support/TestCatalogue.h"

#include "support/Command.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace orlen::TestCatalogue {

void write(const std::string& folder, const std::string& language, const std::string& plurals,
           const std::string& entries)
{
    const std::string place = folder + '/' + language + "/LC_MESSAGES";
    std::filesystem::create_directories(place);
    std::ofstream(place + "/orlen.po") << "msgid \"\"\nmsgstr \"\"\n"
                                          "\"Content-Type: text/plain; charset=UTF-8\\n\"\n\"Plural-Forms: "
                                       << plurals << "\\n\"\n"
                                       << entries;
    EXPECT_EQ(runCommand({"msgfmt", "--output-file=" + place + "/orlen.mo", place + "/orlen.po"}).status, 0);
}

} // namespace orlen::TestCatalogue

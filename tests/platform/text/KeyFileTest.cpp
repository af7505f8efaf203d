#include "platform/text/KeyFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orlen {
namespace {

/// Each entry as "group|key|value".
std::vector<std::string> entries(std::string_view text, KeyFile::Spaces spaces)
{
    std::vector<std::string> all;
    KeyFile file(text, spaces);
    while (const auto line = file.next()) {
        if (!line->key.empty())
            all.push_back(
                std::string(line->group).append("|").append(line->key).append("|").append(line->value));
    }
    return all;
}

constexpr std::string_view kText = "a=0\n [G] \r\n b = 1=2 \r\n#c=3\n;d=4\nno entry\n=5\n[G\ne=\n[]\nf=\xff";

TEST(KeyFileTest, entriesComeWithTheirGroup)
{
    EXPECT_EQ(entries(kText, KeyFile::Spaces::trimmed),
              (std::vector<std::string>{"|a|0", "G|b|1=2", "G|e|", "|f|\xff"}));
}

TEST(KeyFileTest, spacesCanBeKept)
{
    EXPECT_EQ(entries("[G]\r\n [H]\nb = 1 \r\n", KeyFile::Spaces::kept),
              (std::vector<std::string>{"G|b | 1 "}));
}

TEST(KeyFileTest, rawLinesMakeUpTheText)
{
    std::string joined;
    KeyFile file(kText);
    while (const auto line = file.next())
        joined += line->raw;
    EXPECT_EQ(joined, kText);
}

} // namespace
} // namespace orlen

#include "platform/mac/PropertyList.h"

#include "platform/process/ChildProcess.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr std::string_view kExample =
    R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>
<key>Label</key><string>org.foo.Bär &amp; Co</string><key>Number</key><integer>7</integer>
<key>ProgramArguments</key><array><string>/bin/foo</string><true/><string>-x</string></array>
<key>Inner</key><dict><key>Label</key><string>inner</string></dict></dict></plist>)";

void expectExample(const std::optional<PropertyList>& list)
{
    ASSERT_TRUE(list.has_value());
    EXPECT_THAT(list->texts, ElementsAre(Pair("Label", "org.foo.B\xC3\xA4r & Co")));
    EXPECT_THAT(list->textLists, ElementsAre(Pair("ProgramArguments", ElementsAre("/bin/foo", "-x"))));
    EXPECT_EQ(list->text("Label"), "org.foo.B\xC3\xA4r & Co");
    EXPECT_EQ(list->text("Number"), "");
}

std::string nested(std::size_t depth)
{
    std::string list = "<plist><dict><key>a</key><string>b</string><key>c</key>";
    for (std::size_t i = 0; i < depth; ++i)
        list += "<array>";
    // Closings in comments close nothing.
    list += "<!--</array></array>-->";
    for (std::size_t i = 0; i < depth; ++i)
        list += "</array>";
    return list + "</dict></plist>";
}

TEST(PropertyListTest, textsOfTheTopLevelAreRead)
{
    const TempHome home;
    expectExample(PropertyList::read(home.file("a.plist", kExample)));
}

TEST(PropertyListTest, aBinaryListThatAnotherToolWroteIsRead)
{
    const TempHome home;
    TempHome::useSystemTools();
    const std::string xml = home.file("a.plist", kExample);
    const std::string binary = home.path("b.plist");
    const auto outcome = ChildProcess::run({{"plistutil", "-i", xml, "-o", binary, "-f", "bin"}});
    if (!outcome)
        GTEST_SKIP() << "plistutil (package libplist-utils) is not there";
    ASSERT_TRUE(TempHome::content(binary).starts_with("bplist00"));
    expectExample(PropertyList::read(binary));
}

TEST(PropertyListTest, deepNestingIsRefusedBeforeItCanHarm)
{
    // The stack of most threads is smaller than that of the first.
    std::thread([] {
        EXPECT_TRUE(PropertyList::parsed(nested(9'000)).has_value());
        EXPECT_FALSE(PropertyList::parsed(nested(10'001)).has_value());
    }).join();
}

TEST(PropertyListTest, aKeyThatHoldsAZeroIsNoKey)
{
    // One dictionary with a key of three bytes and a text of one; the library ends the program for such a
    // key.
    const auto list = [](char middle) {
        const std::string objects = std::string("\xD1\1\2\x53", 4) + 'a' + middle + "c\x51x";
        return "bplist00" + objects + std::string("\x08\x0B\x0F", 3) +
               std::string("\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 31) +
               static_cast<char>(8 + objects.size());
    };
    ASSERT_TRUE(PropertyList::parsed(list('b')).has_value());
    EXPECT_EQ(PropertyList::parsed(list('b'))->text("abc"), "x");
    EXPECT_FALSE(PropertyList::parsed(list('\0')).has_value());
}

TEST(PropertyListTest, whatIsNoTextIsLeftOut)
{
    const auto list = PropertyList::parsed("<plist><dict><key>a</key><string>x\xFFy</string><key>\xFF</key>"
                                           "<string>b</string><key>c</key><array/></dict></plist>");
    ASSERT_TRUE(list.has_value());
    EXPECT_TRUE(list->texts.empty());
    EXPECT_TRUE(list->textLists.at("c").empty());
    EXPECT_FALSE(PropertyList::parsed("").has_value());
    EXPECT_FALSE(PropertyList::parsed("Label = x;").has_value());
}

} // namespace
} // namespace orlen

#include "platform/mac/BundleInfo.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace orlen {
namespace {

std::string bytesOf(std::uint64_t value, int width)
{
    std::string bytes;
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(value >> static_cast<unsigned>(shift)));
    return bytes;
}

/// A binary list of the given objects, the first being the root; offsets take four bytes, references one.
std::string binaryList(const std::vector<std::string>& objects, std::uint64_t root = 0)
{
    std::string bytes = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets += bytesOf(bytes.size(), 4);
        bytes += object;
    }
    const std::size_t table = bytes.size();
    return bytes + offsets + std::string("\0\0\0\0\0\0\4\1", 8) + bytesOf(objects.size(), 8) +
           bytesOf(root, 8) + bytesOf(table, 8);
}

const std::string kKey = std::string("\x5F\x10\x12", 3) + "CFBundleIdentifier";

std::string xmlList(std::string_view inside)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + std::string(inside) +
           "</plist>";
}

std::string repeated(std::string_view text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST(BundleInfoTest, identifierIsReadFromBothForms)
{
    const TempHome home;
    struct Case {
        const char* name;
        std::string list;
        const char* identifier;
    };
    const Case cases[] = {
        {"XML", xmlList("<dict><key>CFBundleIdentifier</key><string>org.x.Y</string></dict>"), "org.x.Y"},
        {"binary", binaryList({std::string("\xD1\1\2", 3), kKey, "\x57org.x.Y"}), "org.x.Y"},
        {"binary with a text used twice", binaryList({std::string("\xD2\1\2\2\2", 5), kKey, "\x57org.x.Y"}),
         "org.x.Y"},
        {"no identifier", xmlList("<dict><key>Other</key><string>org.x.Y</string></dict>"), ""},
        {"a number instead of a text",
         xmlList("<dict><key>CFBundleIdentifier</key><integer>1</integer></dict>"), ""},
        {"an array instead of a dictionary", xmlList("<array><string>org.x.Y</string></array>"), ""},
        {"a text alone", xmlList("<string>org.x.Y</string>"), ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        home.file("A.app/Contents/Info.plist", c.list);
        EXPECT_EQ(BundleInfo::identifier(home.path("A.app")), c.identifier);
    }
}

TEST(BundleInfoTest, brokenAndHostileListsGiveNothing)
{
    const TempHome home;
    // Each array names the next one twice: 40 of them would unfold to 2^40 texts.
    std::vector<std::string> doubling;
    for (char next = 1; next <= 40; ++next)
        doubling.push_back({'\xA2', next, next});
    doubling.emplace_back("\x51x");
    const std::string longText = std::string("\x5F\x12", 2) + bytesOf(100'000, 4) + std::string(100'000, 'x');
    const std::string manyReferences =
        std::string("\xAF\x11", 2) + bytesOf(60'000, 2) + std::string(60'000, '\1');
    struct Case {
        const char* name;
        std::string list;
    };
    const Case cases[] = {
        {"empty", ""},
        {"only the first bytes", "bplist00"},
        {"XML cut off", xmlList("<dict><key>CFBundleIdentifier</key><string>org.").substr(0, 90)},
        {"XML arrays as deep as the limit allows",
         xmlList(repeated("<array>", 30'000) + repeated("</array>", 30'000))},
        {"XML arrays never closed", repeated("<array>", 70'000)},
        {"binary that contains itself", binaryList({std::string("\xD1\1\0", 3), kKey})},
        {"binary whose inner arrays contain each other",
         binaryList({std::string("\xA1\1", 2), std::string("\xA1\2", 2), std::string("\xA1\1", 2)})},
        {"binary that doubles", binaryList(doubling)},
        {"binary that repeats a long text", binaryList({manyReferences, longText})},
        {"binary that refers to nothing", binaryList({std::string("\xD1\1\x7F", 3), kKey})},
        {"binary whose root lies outside", binaryList({std::string("\xD1\1\2", 3), kKey, "\x51x"}, 9)},
        {"binary text longer than the list",
         binaryList({std::string("\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 10)})},
        {"binary dictionary longer than the list", binaryList({std::string("\xDF\x12\x7F\xFF\xFF\xFF", 6)})},
        {"larger than any real list",
         xmlList(std::string(600'000, ' ') + "<dict><key>CFBundleIdentifier</key><string>x</string></dict>")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        home.file("A.app/Contents/Info.plist", c.list);
        EXPECT_EQ(BundleInfo::identifier(home.path("A.app")), "");
    }
    EXPECT_EQ(BundleInfo::identifier(home.path("Missing.app")), "");
}

TEST(BundleInfoTest, everyPrefixAndEveryChangedByteOfABinaryListIsSurvived)
{
    const TempHome home;
    const std::string whole = binaryList({std::string("\xD1\1\2", 3), kKey, "\x57org.x.Y"});
    for (std::size_t at = 0; at < whole.size(); ++at) {
        home.file("A.app/Contents/Info.plist", whole.substr(0, at));
        EXPECT_EQ(BundleInfo::identifier(home.path("A.app")), "") << at;
        for (const char change : {'\x01', '\x80', '\x7F'}) {
            std::string changed = whole;
            changed[at] = static_cast<char>(changed[at] ^ change);
            home.file("A.app/Contents/Info.plist", changed);
            EXPECT_LE(BundleInfo::identifier(home.path("A.app")).size(), whole.size()) << at;
        }
    }
}

} // namespace
} // namespace orlen

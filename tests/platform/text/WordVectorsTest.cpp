#include "platform/text/WordVectors.h"

#include "platform/values/Sha256.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace orlen {
namespace {

std::string number(std::uint32_t value)
{
    std::string bytes;
    for (int i = 0; i < 4; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i)));
    return bytes;
}

struct Parts {
    std::string magic = "OVEC";
    std::uint32_t version = 1;
    std::uint32_t words = 4;
    std::uint32_t numbers = 2;
    float scale = 1;
    std::string text = "east\nnorth\nnowhere\nwest\n";
    std::string vectors{"\x7F\0\0\x64\0\0\x81\0", 8};
};

std::string table(const Parts& parts)
{
    return parts.magic + number(parts.version) + number(parts.words) + number(parts.numbers) +
           number(static_cast<std::uint32_t>(parts.text.size())) +
           number(std::bit_cast<std::uint32_t>(parts.scale)) + parts.text + parts.vectors;
}

std::string sealed(std::string bytes)
{
    Sha256 hash;
    hash.update(std::as_bytes(std::span(bytes)));
    for (const std::byte byte : hash.finish())
        bytes.push_back(static_cast<char>(byte));
    return bytes;
}

TEST(WordVectorsTest, distanceIsThatOfTheDirections)
{
    const auto words = WordVectors::read(table({}));
    ASSERT_TRUE(words.has_value());
    EXPECT_EQ(words->size(), 4U);
    EXPECT_EQ(words->distance("east", "east"), 0.0);
    EXPECT_EQ(words->distance("east", "north"), 1.0);
    EXPECT_EQ(words->distance("west", "east"), 2.0);
    EXPECT_EQ(words->distance("east", "nowhere"), std::nullopt); // it has no direction
    for (const char* unknown : {"", "eas", "easts", "East", "zenith", "a", "east\nnorth"})
        EXPECT_EQ(words->distance("east", unknown), std::nullopt) << unknown;

    Parts stretched;
    stretched.scale = 1.5F;
    const auto wide = WordVectors::read(table(stretched));
    EXPECT_EQ(wide->distance("east", "north"), 1.5);
    EXPECT_EQ(wide->distance("east", "west"), 2.0);
}

TEST(WordVectorsTest, tableThatContradictsItselfIsRefused)
{
    const std::string whole = table({});
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(WordVectors::read(whole.substr(0, size))) << size;
    EXPECT_FALSE(WordVectors::read(whole + '\0'));

    const auto refused = [](auto change) {
        Parts parts;
        change(parts);
        return !WordVectors::read(table(parts));
    };
    EXPECT_TRUE(refused([](Parts& p) { p.magic = "OVEX"; }));
    EXPECT_TRUE(refused([](Parts& p) { p.version = 2; }));
    EXPECT_TRUE(refused([](Parts& p) { p.scale = 0; }));
    EXPECT_TRUE(refused([](Parts& p) { p.scale = std::numeric_limits<float>::quiet_NaN(); }));
    EXPECT_TRUE(refused([](Parts& p) {
        p.numbers = 0;
        p.vectors.clear();
    }));
    EXPECT_TRUE(refused([](Parts& p) { p.words = 0xFFFFFFFF; }));
    EXPECT_TRUE(refused([](Parts& p) {
        p.words = 2;
        p.numbers = 4;
    })); // more words than said
    EXPECT_TRUE(refused([](Parts& p) {
        p.words = 8;
        p.numbers = 1;
    }));                                                                             // fewer
    EXPECT_TRUE(refused([](Parts& p) { p.text = "north\neast\nnowhere\nwest\n"; })); // not in order
    EXPECT_TRUE(refused([](Parts& p) { p.text = "east\neast\nnowhere\nwest\n"; }));  // twice
    EXPECT_TRUE(refused([](Parts& p) { p.text = "east\nnorth\nnowhere\nwest"; }));   // not ended
}

TEST(WordVectorsTest, fileWithAnyByteChangedCountsAsAbsent)
{
    const TempHome home;
    const std::string whole = sealed(table({}));
    home.file("words", whole);
    EXPECT_TRUE(WordVectors::load(home.path("words")).has_value());
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 4);
        home.file("words", damaged);
        EXPECT_FALSE(WordVectors::load(home.path("words"))) << at;
    }
    home.file("words", whole.substr(0, 31));
    EXPECT_FALSE(WordVectors::load(home.path("words")));
    home.file("words", std::string(WordVectors::kLongestFile + 1, 'a'));
    EXPECT_FALSE(WordVectors::load(home.path("words")));
    EXPECT_FALSE(WordVectors::load(home.path("missing")));
    EXPECT_FALSE(WordVectors::load(home.path("")));
}

} // namespace
} // namespace orlen

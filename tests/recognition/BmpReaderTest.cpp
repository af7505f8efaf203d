#include "recognition/BmpReader.h"

#include "recognition/Pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace orlen {

namespace {

using Pictures::difference;
using Pictures::kFour;
using Pictures::Quarters;
using Pictures::quartersOf;

constexpr Quarters kRows{Pictures::kRed, Pictures::kRed, Pictures::kBlue, Pictures::kBlue};

std::string little(std::int64_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text +=
            static_cast<char>(static_cast<std::uint64_t>(number) >> (8U * static_cast<unsigned>(i)) & 0xFFU);
    return text;
}

struct Bmp {
    int width = 4;
    int height = 4; ///< negative: from the top down
    int bits = 24;
    int compression = 0;
    int headerSize = 40;
    std::string afterHeader; ///< masks or palette
    std::string pixels;

    [[nodiscard]] std::string bytes() const
    {
        std::string header = little(headerSize, 4) + little(width, 4) + little(height, 4) + little(1, 2) +
                             little(bits, 2) + little(compression, 4) + std::string(20, '\0');
        if (headerSize == 12)
            header = little(12, 4) + little(width, 2) + little(height, 2) + little(1, 2) + little(bits, 2);
        const std::size_t offset = 14 + header.size() + afterHeader.size();
        return "BM" + little(0, 8) + little(static_cast<std::int64_t>(offset), 4) + header + afterHeader +
               pixels;
    }
};

std::optional<BmpReader::Picture> read(const std::string& bytes, int side = 512)
{
    return BmpReader::read(
        [&bytes](std::int64_t offset, std::span<std::uint8_t> buffer) -> std::size_t {
            if (offset >= static_cast<std::int64_t>(bytes.size()))
                return 0;
            const std::string_view rest = std::string_view(bytes).substr(static_cast<std::size_t>(offset));
            const std::size_t length = std::min(rest.size(), buffer.size());
            std::copy_n(rest.begin(), length, buffer.begin());
            return length;
        },
        {{side, side}});
}

std::string times(int count, const std::string& text)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

/// The rest of a palette of 256, in bytes.
constexpr std::size_t kUnusedColours = 252UL * 4;

const std::string kZero(1, '\0');
/// Blue, green, red, and a byte of no meaning.
const std::string kPalette =
    little(0x0000FF, 4) + little(0x00FF00, 4) + little(0xFF0000, 4) + little(0xFFFFFF, 4);

} // namespace

TEST(BmpReaderTest, everyDepthIsRead)
{
    struct Case {
        const char* name;
        Bmp bmp;
        Quarters expected;
    };
    const std::string red24 = little(0xFF0000, 3);
    const std::string green24 = little(0x00FF00, 3);
    const std::string blue24 = little(0x0000FF, 3);
    const std::string white24 = little(0xFFFFFF, 3);
    const std::string upper24 = times(2, red24) + times(2, green24);
    const std::string lower24 = times(2, blue24) + times(2, white24);
    const std::string masks565 = little(0xF800, 4) + little(0x07E0, 4) + little(0x1F, 4);
    const std::string masksRgba =
        little(0xFF, 4) + little(0xFF00, 4) + little(0xFF0000, 4) + little(0xFF000000, 4);
    const Case cases[] = {
        {"1 bit",
         {.bits = 1,
          .afterHeader = little(0x0000FF, 4) + little(0xFF0000, 4),
          .pixels = times(2, kZero + little(0, 3)) + times(2, "\xF0" + little(0, 3))},
         kRows},
        {"4 bits",
         {.bits = 4,
          .afterHeader = kPalette + std::string(48, '\0'),
          .pixels = times(2, std::string("\x00\x33", 2) + little(0, 2)) +
                    times(2, std::string("\x22\x11", 2) + little(0, 2))},
         kFour},
        {"8 bits",
         {.bits = 8,
          .afterHeader = kPalette + std::string(kUnusedColours, '\0'),
          .pixels = times(2, std::string("\0\0\3\3", 4)) + times(2, std::string("\2\2\1\1", 4))},
         kFour},
        {"16 bits",
         {.bits = 16,
          .pixels = times(2, times(2, little(0x1F, 2)) + times(2, little(0x7FFF, 2))) +
                    times(2, times(2, little(0x7C00, 2)) + times(2, little(0x3E0, 2)))},
         kFour},
        {"16 bits with masks",
         {.bits = 16,
          .compression = 3,
          .afterHeader = masks565,
          .pixels = times(8, little(0x1F, 2)) + times(8, little(0xF800, 2))},
         kRows},
        {"24 bits", {.pixels = times(2, lower24) + times(2, upper24)}, kFour},
        {"24 bits from the top", {.height = -4, .pixels = times(2, upper24) + times(2, lower24)}, kFour},
        {"32 bits, the fourth byte means nothing",
         {.bits = 32, .pixels = times(8, little(0x0000FF, 4)) + times(8, little(0xFF0000, 4))},
         kRows},
        {"32 bits with alpha",
         {.bits = 32,
          .compression = 6,
          .afterHeader = masksRgba,
          .pixels = times(8, little(0xFFFF0000, 4)) + times(8, little(0x000000FF, 4))},
         {Pictures::kWhite, Pictures::kWhite, Pictures::kBlue, Pictures::kBlue}},
        {"the oldest header", {.headerSize = 12, .pixels = times(2, lower24) + times(2, upper24)}, kFour},
        {"run lengths",
         {.bits = 8,
          .compression = 1,
          .afterHeader = kPalette + std::string(kUnusedColours, '\0'),
          .pixels = times(2, std::string("\4\0\0\0", 4)) + std::string("\0\4\2\2\2\2\0\0", 8) +
                    std::string("\3\2\1\2\0\1", 6)},
         kRows},
        {"run lengths with a jump",
         {.bits = 8,
          .compression = 1,
          .afterHeader = kPalette + std::string(kUnusedColours, '\0'),
          .pixels =
              std::string("\0\2\0\2", 4) + times(2, std::string("\4\2\0\0", 4)) + std::string("\0\1", 2)},
         kRows},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto picture = read(c.bmp.bytes());
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width, 4);
        EXPECT_EQ(picture->height, 4);
        EXPECT_EQ(difference(quartersOf(picture->small), c.expected), 0);
    }
}

TEST(BmpReaderTest, aLargePictureIsShrunkToTheMeanOfItsPixels)
{
    // Stripes of black and white, one pixel each.
    const std::string row = times(500, little(0, 3) + little(0xFFFFFF, 3));
    const auto picture = read(Bmp{.width = 1000, .height = 100, .pixels = times(100, row)}.bytes(), 100);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 1000);
    EXPECT_EQ(picture->small.width, 100);
    EXPECT_EQ(picture->small.height, 10);
    for (const std::uint8_t value : picture->small.pixels)
        ASSERT_EQ(value, 128);
}

TEST(BmpReaderTest, uptoATenthMayBeMissing)
{
    const std::string row = times(40, little(0x0000FF, 3));
    for (const auto& [rows, isRead] :
         {std::pair(20, true), std::pair(18, true), std::pair(17, false), std::pair(0, false)}) {
        SCOPED_TRACE(rows);
        EXPECT_EQ(read(Bmp{.width = 40, .height = 20, .pixels = times(rows, row)}.bytes()).has_value(),
                  isRead);
    }
}

TEST(BmpReaderTest, whatIsNoneIsRefused)
{
    const Bmp cases[] = {
        {.width = 0},
        {.width = -4},
        {.height = 0},
        {.width = 30'001, .height = 1},
        {.width = 25'001, .height = 10'000},
        {.height = -2'147'483'647 - 1},
        {.bits = 0},
        {.bits = 2},
        {.bits = 64},
        {.bits = 24, .compression = 3},
        {.bits = 4, .compression = 2},
        {.bits = 8, .compression = 4},
        {.height = -4, .bits = 8, .compression = 1},
        {.bits = 24, .headerSize = 39},
        {.bits = 24, .headerSize = 125},
        {.bits = 32, .headerSize = 12},
    };
    for (const Bmp& bmp : cases) {
        SCOPED_TRACE(&bmp - cases);
        std::string bytes = bmp.bytes();
        bytes.resize(bytes.size() + 4096);
        EXPECT_FALSE(read(bytes));
    }
    EXPECT_FALSE(read("BM"));
    EXPECT_FALSE(read(""));
}

TEST(BmpReaderTest, damagedFilesAreReadOrRefused)
{
    std::minstd_rand random(11); // NOLINT(cert-msc51-cpp): the same damage every time
    const Bmp kinds[] = {
        {.bits = 8, .compression = 1, .afterHeader = kPalette, .pixels = times(200, "\3\1\2\2")},
        {.bits = 4, .afterHeader = kPalette, .pixels = times(200, "\3\1\2\2")},
        {.bits = 32,
         .compression = 3,
         .headerSize = 40,
         .afterHeader = kPalette,
         .pixels = times(200, "\3\1\2\2")},
    };
    for (const Bmp& bmp : kinds) {
        for (int round = 0; round < 400; ++round) {
            std::string bytes = bmp.bytes();
            for (int hits = 0; hits < 4; ++hits)
                bytes[2 + random() % 70] = static_cast<char>(random());
            bytes.resize(random() % bytes.size());
            const auto picture = read(bytes, 64);
            EXPECT_TRUE(!picture || picture->small.pixels.size() <= 64UL * 64 * 3);
        }
    }
}

} // namespace orlen

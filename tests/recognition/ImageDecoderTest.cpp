#include "recognition/ImageDecoder.h"

#include "recognition/Pictures.h"
#include "recognition/Sharpness.h"
#include "support/TestBmp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>

namespace orlen {

namespace {

using ImageDecoder::Decoded;
using Pictures::decoded;
using Pictures::difference;
using Pictures::encoded;
using Pictures::kBlue;
using Pictures::kFour;
using Pictures::kGreen;
using Pictures::kRed;
using Pictures::kWhite;
using Pictures::Options;
using Pictures::Quarters;
using Pictures::quartersOf;

constexpr int kLossless = 2;
constexpr int kLossy = 40;

bool isWhole(const Decoded& decoded)
{
    const RgbImage& image = decoded.small;
    return image.width > 0 && image.height > 0 && std::max(image.width, image.height) <= 512 &&
           image.pixels.size() == RgbImage::byteCount(image.width, image.height);
}

std::string bigEndian(std::uint32_t number)
{
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes += static_cast<char>(number >> shift & 0xFFU);
    return bytes;
}

/// A PNG that promises a size and changes hands before its first pixel.
std::string promising(std::uint32_t width, std::uint32_t height)
{
    std::string bytes = encoded({});
    bytes.replace(16, 8, bigEndian(width) + bigEndian(height));
    // The check sum of the header, which is read before its numbers are believed.
    std::uint32_t sum = ~0U;
    for (const char byte : bytes.substr(12, 17)) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1U ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return bytes.replace(29, 4, bigEndian(~sum));
}

class ImageDecoderTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        ::setenv("VIPS_WARNING", "off", 1); // Whatever its value, damaged files are not commented upon.
        ImageDecoder::prepare();
    }
};

} // namespace

TEST_F(ImageDecoderTest, everyFormatAndDepthGivesTheSameColours)
{
    struct Case {
        const char* name;
        Options options;
        int tolerance;
    };
    const Case cases[] = {
        {"png", {.format = ".png"}, kLossless},
        {"interlaced png", {.format = ".png[interlace]"}, kLossless},
        {"png with a palette", {.format = ".png[palette]"}, kLossless},
        {"png of 16 bit", {.format = ".png", .interpretation = "16 bit"}, kLossless},
        {"jpeg", {.format = ".jpg[Q=95]"}, kLossy},
        {"progressive jpeg", {.format = ".jpg[Q=95,interlace]"}, kLossy},
        {"jpeg of inks",
         {.quarters = {kWhite, kWhite, {0, 0, 0}, kWhite}, .format = ".jpg[Q=95]", .interpretation = "cmyk"},
         60},
        {"tiff", {.format = ".tif[compression=lzw]"}, kLossless},
        {"tiff of 16 bit", {.format = ".tif", .interpretation = "16 bit"}, kLossless},
        {"tiff of tiles", {.format = ".tif[tile,tile-width=16,tile-height=16]"}, kLossless},
        {"webp", {.format = ".webp[lossless]"}, kLossless},
        {"gif", {.format = ".gif"}, kLossless},
        {"avif", {.format = ".avif[Q=90,effort=1]"}, kLossy},
        {"jpeg xl", {.format = ".jxl[Q=95]"}, kLossy},
        {"lossless jpeg xl", {.format = ".jxl[lossless]"}, kLossless},
        {"jpeg xl of 16 bit", {.format = ".jxl[lossless]", .interpretation = "16 bit"}, kLossless},
        {"opaque alpha", {.alpha = 255, .format = ".png"}, kLossless},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto picture = decoded(encoded(c.options));
        ASSERT_TRUE(picture);
        EXPECT_TRUE(isWhole(*picture));
        EXPECT_EQ(picture->width, 64);
        EXPECT_EQ(picture->height, 48);
        EXPECT_EQ(picture->small.width, 64) << "never enlarged";
        EXPECT_LE(difference(quartersOf(picture->small), c.options.quarters), c.tolerance);
    }
}

TEST_F(ImageDecoderTest, greyIsTheSameInAllChannels)
{
    for (const char* format : {".png", ".jpg", ".tif", ".webp", ".jxl"}) {
        SCOPED_TRACE(format);
        const auto picture = decoded(encoded({.format = format, .interpretation = "grey"}));
        ASSERT_TRUE(picture);
        for (const Pictures::Colour& colour : quartersOf(picture->small)) {
            EXPECT_NEAR(colour[0], colour[1], 1);
            EXPECT_NEAR(colour[0], colour[2], 1);
        }
    }
}

TEST_F(ImageDecoderTest, everyOrientationComesOutUpright)
{
    // How the quarters lie in the file for the upright picture to show red, green, blue, white.
    const Quarters stored[] = {
        kFour,
        {kGreen, kRed, kWhite, kBlue},
        {kWhite, kBlue, kGreen, kRed},
        {kBlue, kWhite, kRed, kGreen},
        {kRed, kBlue, kGreen, kWhite},
        {kGreen, kWhite, kRed, kBlue},
        {kWhite, kGreen, kBlue, kRed},
        {kBlue, kRed, kWhite, kGreen},
    };
    // The decoder of JPEG shrinks the large one first.
    for (const PixelSize size : {PixelSize{800, 600}, PixelSize{2400, 1800}}) {
        for (int orientation = 1; orientation <= 8; ++orientation) {
            SCOPED_TRACE(testing::Message() << size.width << ", " << orientation);
            const bool isSideways = orientation > 4;
            const auto picture = decoded(encoded({.width = size.width,
                                                  .height = size.height,
                                                  .quarters = stored[orientation - 1],
                                                  .orientation = orientation,
                                                  .format = ".jpg[Q=95]"}));
            ASSERT_TRUE(picture);
            EXPECT_EQ((PixelSize{picture->width, picture->height}), size) << "as it is stored";
            EXPECT_EQ(picture->upright(), (isSideways ? PixelSize{size.height, size.width} : size));
            EXPECT_EQ((PixelSize{picture->small.width, picture->small.height}),
                      (isSideways ? PixelSize{384, 512} : PixelSize{512, 384}));
            EXPECT_LE(difference(quartersOf(picture->small), kFour), kLossy);
            EXPECT_FALSE(picture->traits.isDamaged);
        }
    }
}

TEST_F(ImageDecoderTest, aPartOfAPictureIsReadWhereItIsSeen)
{
    // How the quarters lie in the file for the upright picture to show red, green, blue, white.
    const Quarters stored[] = {
        kFour,
        {kGreen, kRed, kWhite, kBlue},
        {kWhite, kBlue, kGreen, kRed},
        {kBlue, kWhite, kRed, kGreen},
        {kRed, kBlue, kGreen, kWhite},
        {kGreen, kWhite, kRed, kBlue},
        {kWhite, kGreen, kBlue, kRed},
        {kBlue, kRed, kWhite, kGreen},
    };
    const auto all = [](const Pictures::Colour& colour) { return Quarters{colour, colour, colour, colour}; };
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const PixelSize upright = orientation > 4 ? PixelSize{600, 800} : PixelSize{800, 600};
        const std::string bytes = encoded({.width = 800,
                                           .height = 600,
                                           .quarters = stored[orientation - 1],
                                           .orientation = orientation,
                                           .format = ".jpg[Q=95]"});
        const auto part = [&](const PixelRect& wanted, const PixelSize& size) {
            return decoded(bytes, {size, PictureBound::Fit::inside, wanted});
        };
        const auto right = part({upright.width - 100, 20, 80, 40}, {500, 500});
        ASSERT_TRUE(right);
        EXPECT_EQ(right->upright(), upright);
        EXPECT_EQ((PixelSize{right->small.width, right->small.height}), (PixelSize{80, 40}))
            << "pixel by pixel";
        EXPECT_LE(difference(quartersOf(right->small), all(kGreen)), kLossy);
        const auto below = part({20, upright.height - 100, 160, 400}, {40, 40});
        ASSERT_TRUE(below);
        EXPECT_EQ((PixelSize{below->small.width, below->small.height}), (PixelSize{40, 25}))
            << "cut and shrunk";
        EXPECT_LE(difference(quartersOf(below->small), all(kBlue)), kLossy);
        EXPECT_FALSE(part({upright.width, 0, 10, 10}, {40, 40})) << "beside it";
    }
    const auto bitmap = decoded(Pictures::bmp({.width = 300, .height = 200}),
                                {{90, 90}, PictureBound::Fit::inside, PixelRect{160, 10, 100, 50}});
    ASSERT_TRUE(bitmap);
    EXPECT_EQ((PixelSize{bitmap->small.width, bitmap->small.height}), (PixelSize{90, 45}));
    EXPECT_LE(difference(quartersOf(bitmap->small), all(kGreen)), kLossless);
}

TEST_F(ImageDecoderTest, aPictureIsCutToTheShapeThatIsWanted)
{
    struct Case {
        const char* name;
        std::string bytes;
        PixelSize wanted;
        PixelSize given;
        std::optional<Quarters> quarters;
    };
    const Options wide{.width = 600, .height = 200, .format = ".jpg[Q=95]"};
    Options sideways = wide;
    sideways.orientation = 6;
    const Case cases[] = {
        {"a square of a wide one", encoded(wide), {50, 50}, {50, 50}, kFour},
        {"a wide one of a wide one", encoded(wide), {90, 20}, {90, 20}, kFour},
        {"an upright one of a wide one", encoded(wide), {20, 90}, {20, 90}, kFour},
        {"a square of one that is turned",
         encoded(sideways),
         {60, 60},
         {60, 60},
         {{kBlue, kRed, kWhite, kGreen}}},
        {"the shape of what is wanted, not its size", encoded(wide), {1000, 2000}, {100, 200}, kFour},
        {"the same, as wide as it is",
         encoded(sideways),
         {2000, 1000},
         {200, 100},
         {{kBlue, kRed, kWhite, kGreen}}},
        {"a bitmap", testBmp(300, 100), {50, 50}, {50, 50}, {}},
        {"a sliver", encoded({.width = 3000, .height = 1}), {40, 40}, {1, 1}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto picture = decoded(c.bytes, {c.wanted, PictureBound::Fit::cover});
        ASSERT_TRUE(picture);
        EXPECT_EQ((PixelSize{picture->small.width, picture->small.height}), c.given);
        EXPECT_EQ(picture->small.pixels.size(), RgbImage::byteCount(c.given.width, c.given.height));
        if (c.quarters) {
            EXPECT_LE(difference(quartersOf(picture->small), *c.quarters), kLossy);
        }
    }
}

TEST_F(ImageDecoderTest, whatIsSeenThroughIsWhite)
{
    for (const char* kind : {"", "16 bit"}) {
        SCOPED_TRACE(kind);
        const auto clear = decoded(encoded({.alpha = 0, .interpretation = kind}));
        ASSERT_TRUE(clear);
        EXPECT_LE(difference(quartersOf(clear->small), {kWhite, kWhite, kWhite, kWhite}), kLossless);
        const auto half = decoded(encoded({.alpha = 128, .interpretation = kind}));
        ASSERT_TRUE(half);
        EXPECT_NEAR(quartersOf(half->small)[0][0], 255, 2);
        EXPECT_NEAR(quartersOf(half->small)[0][1], 127, 2);
    }
}

TEST_F(ImageDecoderTest, ofAnAnimationOnlyTheFirstFrameIsSeen)
{
    for (const char* format : {".gif", ".webp[lossless]"}) {
        SCOPED_TRACE(format);
        const auto picture = decoded(Pictures::animated(format));
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->height, 48);
        EXPECT_LE(difference(quartersOf(picture->small), kFour), kLossless);
    }
}

TEST_F(ImageDecoderTest, extremeShapesHaveAPixelOnEachSide)
{
    for (const auto& [width, height] :
         {std::pair(1, 1), std::pair(2000, 1), std::pair(1, 2000), std::pair(30'000, 2)}) {
        SCOPED_TRACE(width);
        const auto picture = decoded(encoded({.width = width, .height = height}));
        ASSERT_TRUE(picture);
        EXPECT_TRUE(isWhole(*picture));
        EXPECT_EQ(picture->width, width);
        EXPECT_EQ(picture->height, height);
    }
}

TEST_F(ImageDecoderTest, aCameraIsToldByItsNotes)
{
    for (const char* format : {".jpg", ".webp"}) {
        SCOPED_TRACE(format);
        EXPECT_TRUE(decoded(encoded({.format = format, .cameraMake = "Maker"}))->traits.isFromCamera);
        EXPECT_FALSE(decoded(encoded({.orientation = 3, .format = format}))->traits.isFromCamera);
        EXPECT_FALSE(decoded(encoded({.format = format, .cameraMake = "  "}))->traits.isFromCamera);
    }
}

TEST_F(ImageDecoderTest, traitsOfTheFileAreTold)
{
    struct Case {
        const char* format;
        PictureTraits traits;
    };
    const Case cases[] = {
        {".jpg", {.format = PictureFormat::jpeg}},
        {".webp", {.format = PictureFormat::webp}},
        {".png", {.format = PictureFormat::png}},
        {".png[palette]", {.format = PictureFormat::png, .hasPalette = true}},
        {".gif", {.format = PictureFormat::gif, .hasPalette = true}},
        {".tif", {.format = PictureFormat::tiff}},
        {".avif[effort=1]", {.format = PictureFormat::heif}},
        {".jxl", {.format = PictureFormat::jxl}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.format);
        EXPECT_EQ(decoded(encoded({.format = c.format}))->traits, c.traits);
    }
    EXPECT_EQ(decoded(testBmp(64, 48))->traits, (PictureTraits{.format = PictureFormat::bmp}));
}

TEST_F(ImageDecoderTest, theSamePixelsAreAsSharpInEveryFormat)
{
    // As large as a camera's picture, so that each format takes its own way down to the small one.
    const Options picture{.width = 1500, .height = 1100, .isNoisy = true, .format = ".png[compression=1]"};
    const double sharpness = Sharpness::laplacianVariance(decoded(encoded(picture))->small);
    for (const char* format : {".webp[lossless,effort=0]", ".webp[Q=98,effort=0]", ".jpg[Q=98]", ".tif",
                               ".jxl[lossless,effort=3]"}) {
        SCOPED_TRACE(format);
        Options other = picture;
        other.format = format;
        EXPECT_NEAR(Sharpness::laplacianVariance(decoded(encoded(other))->small) / sharpness, 1, 0.03);
    }
    EXPECT_NEAR(Sharpness::laplacianVariance(decoded(Pictures::bmp(picture))->small) / sharpness, 1, 0.03);
}

TEST_F(ImageDecoderTest, otherFormatsAreNoPicturesWhateverTheyLookLike)
{
    const std::string noPictures[] = {
        "",
        "B",
        "BM",
        "GIF89a",
        "\xFF\xD8\xFF",
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="64" height="64"><rect width="9"/></svg>)",
        "%PDF-1.4\n1 0 obj <</Type /Catalog>> endobj\ntrailer <</Root 1 0 R>>\n%%EOF",
        "P6\n1 1\n255\nabc",
        "1,2,3\n4,5,6\n",
    };
    for (const std::string& bytes : noPictures) {
        SCOPED_TRACE(bytes.substr(0, 8));
        EXPECT_FALSE(decoded(bytes));
    }
}

TEST_F(ImageDecoderTest, hugePicturesAreRefusedByTheirHeader)
{
    struct Case {
        const char* name;
        std::uint32_t width;
        std::uint32_t height;
    };
    const Case cases[] = {{"too wide", 30'001, 1},
                          {"too high", 1, 30'001},
                          {"too many pixels", 25'001, 10'000},
                          {"the largest number", 0x7FFFFFFF, 0x7FFFFFFF},
                          {"nothing", 0, 10}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto started = std::chrono::steady_clock::now();
        EXPECT_FALSE(decoded(promising(c.width, c.height)));
        EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(1));
    }
    EXPECT_TRUE(decoded(promising(64, 48))) << "the promise itself is well made";
}

TEST_F(ImageDecoderTest, aPictureWithoutItsEndIsKeptOnlyWhenLittleIsMissing)
{
    for (const char* format : {".png[compression=0]", ".jpg[Q=90]"}) {
        SCOPED_TRACE(format);
        const std::string whole = encoded({.width = 640, .height = 480, .isNoisy = true, .format = format});
        EXPECT_FALSE(decoded(whole.substr(0, whole.size() * 80 / 100)));
        EXPECT_FALSE(decoded(whole.substr(0, whole.size() / 3)));
    }
    const std::string photo = encoded({.width = 640, .height = 480, .isNoisy = true, .format = ".jpg[Q=90]"});
    EXPECT_FALSE(decoded(photo)->traits.isDamaged);
    const auto cut = decoded(photo.substr(0, photo.size() * 97 / 100));
    ASSERT_TRUE(cut);
    EXPECT_TRUE(cut->traits.isDamaged);
    EXPECT_TRUE(decoded(photo.substr(0, photo.size() - 2))) << "only the mark of the end is missing";
}

TEST_F(ImageDecoderTest, damagedFilesAreReadOrRefused)
{
    std::minstd_rand random(42); // NOLINT(cert-msc51-cpp): the same damage every time
    for (const char* format :
         {".png", ".jpg", ".jpg[interlace]", ".tif[compression=lzw]", ".tif[compression=jpeg]", ".webp",
          ".gif", ".avif[effort=1]", ".jxl[effort=3]"}) {
        SCOPED_TRACE(format);
        const std::string whole = encoded({.width = 160, .height = 120, .isNoisy = true, .format = format});
        for (int round = 0; round < 60; ++round) {
            SCOPED_TRACE(round);
            std::string bytes = whole;
            if (round % 3 == 0)
                bytes.resize(random() % bytes.size());
            // Most of the traps are in the first bytes, where the sizes stand.
            const std::size_t reach =
                round % 3 == 1 ? std::min<std::size_t>(bytes.size(), 400) : bytes.size();
            for (auto hits = 1 + random() % 20; hits > 0 && reach > 0; --hits)
                bytes[random() % reach] = static_cast<char>(random());
            const auto picture = decoded(bytes);
            EXPECT_TRUE(!picture || isWhole(*picture));
        }
    }
}

} // namespace orlen

#include "platform/images/ImageMessages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace orlen {

namespace {

using ImageMessages::Answer;
using ImageMessages::decodedAnswer;
using ImageMessages::decodedPictureAnswer;
using ImageMessages::decodedQuestion;
using ImageMessages::encoded;
using ImageMessages::PictureAnswer;
using ImageMessages::Question;

// Where the numbers stand in an answer.
constexpr std::size_t kHasPicture = 0;
constexpr std::size_t kWidth = 1;
constexpr std::size_t kSharpness = 9;
constexpr std::size_t kFormat = 17;
constexpr std::size_t kTraits = 18;
constexpr std::size_t kHasPrint = 19;
constexpr std::size_t kDirection = 20;
constexpr std::size_t kTileLength = kDirection + sizeof(FeaturePrint::Direction);
constexpr std::size_t kTileBytes = 5;
constexpr std::size_t kOutline = kTileLength + sizeof(std::uint16_t) + kTileBytes;
constexpr std::size_t kBlockCount = kOutline + sizeof(PictureOutline::Rows);
constexpr std::size_t kBlock = kBlockCount + 1;
constexpr std::size_t kLabelCount = kBlock + sizeof(PictureOutline::Block);
constexpr std::size_t kIdentifier = kLabelCount + 2;

Answer picture()
{
    FeaturePrint::Direction direction{};
    direction[3] = -95;
    direction[127] = 127;
    const PictureOutline outline({1, 2}, std::array{PictureOutline::Block{56, 0, 9}});
    return {ImageAnalysis{4000,
                          3000,
                          FeaturePrint(direction, std::vector<std::uint8_t>(kTileBytes, 255), outline),
                          21.9,
                          {{"receipt", 0.7F}, {"text", 0.1F}},
                          {.format = PictureFormat::gif, .isGrey = true, .isFromCamera = true}}};
}

template <typename Number>
std::string replaced(std::size_t at, Number number)
{
    std::string bytes = encoded(picture());
    std::memcpy(&bytes[at], &number, sizeof number);
    return bytes;
}

} // namespace

TEST(ImageMessagesTest, whatIsSaidIsWhatIsHeard)
{
    const auto heard = decodedAnswer(encoded(picture()));
    ASSERT_TRUE(heard && heard->analysis && heard->analysis->print);
    EXPECT_EQ(heard->analysis->width, 4000);
    EXPECT_EQ(heard->analysis->height, 3000);
    EXPECT_EQ(heard->analysis->sharpness, 21.9);
    EXPECT_EQ(heard->analysis->print->direction(), picture().analysis->print->direction());
    EXPECT_EQ(heard->analysis->print->packedTile(), picture().analysis->print->packedTile());
    EXPECT_EQ(heard->analysis->print->outline(), picture().analysis->print->outline());
    EXPECT_EQ(heard->analysis->labels, picture().analysis->labels);
    EXPECT_EQ(heard->analysis->traits, picture().analysis->traits);

    const auto plain = decodedAnswer(encoded(Answer{ImageAnalysis{}}));
    ASSERT_TRUE(plain && plain->analysis);
    EXPECT_FALSE(plain->analysis->print);
    const auto none = decodedAnswer(encoded(Answer{}));
    ASSERT_TRUE(none);
    EXPECT_FALSE(none->analysis);
}

TEST(ImageMessagesTest, theOutlineThatAnEarlierBuildDidNotTellIsDrawnFromTheTile)
{
    std::string bytes = replaced(kHasPrint, std::uint8_t{1});
    EXPECT_FALSE(decodedAnswer(bytes)) << "there is one";
    bytes.erase(kOutline, kLabelCount - kOutline);
    const auto heard = decodedAnswer(bytes);
    ASSERT_TRUE(heard && heard->analysis && heard->analysis->print);
    const FeaturePrint& print = *heard->analysis->print;
    EXPECT_EQ(print.packedTile(), picture().analysis->print->packedTile());
    EXPECT_EQ(print.outline(), PictureOutline(print.tile()));
    EXPECT_EQ(heard->analysis->labels, picture().analysis->labels);
}

TEST(ImageMessagesTest, aQuestionIsHeardAsItWasPut)
{
    const auto plain = decodedQuestion(encoded(Question{}));
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->bound);
    const auto small = decodedQuestion(encoded(Question{{{{4096, 1}, PictureBound::Fit::cover}}}));
    ASSERT_TRUE(small && small->bound);
    EXPECT_EQ(small->bound->size, (PixelSize{4096, 1}));
    EXPECT_EQ(small->bound->fit, PictureBound::Fit::cover);
    for (const PixelSize size : {PixelSize{4097, 1}, PixelSize{1, 4097}, PixelSize{0, 5}, PixelSize{5, -1}})
        EXPECT_FALSE(decodedQuestion(encoded(Question{{{size}}}))) << size.width << ' ' << size.height;
    const auto icon = decodedQuestion(encoded(Question{{{{32, 16}}}, PictureUse::icon}));
    ASSERT_TRUE(icon && icon->bound);
    EXPECT_EQ(icon->use, PictureUse::icon);
    EXPECT_FALSE(decodedQuestion(encoded(Question{{{{8, 8}, PictureBound::Fit::cover}}, PictureUse::icon})));
    const auto part = [](const PixelRect& rect) {
        return decodedQuestion(encoded(Question{PictureBound{{8, 8}, PictureBound::Fit::inside, rect}}));
    };
    ASSERT_TRUE(part({0, 7, 5000, 1}));
    EXPECT_EQ(part({0, 7, 5000, 1})->bound->part, (PixelRect{0, 7, 5000, 1}));
    for (const PixelRect& rect :
         {PixelRect{-1, 0, 5, 5}, PixelRect{0, 0, 0, 5}, PixelRect{0, 0, 5, 2'000'000}})
        EXPECT_FALSE(part(rect)) << rect.x << ' ' << rect.width << ' ' << rect.height;
    PictureBound kept{{8, 8}, PictureBound::Fit::cover};
    kept.madeOf = -1'700'000'000;
    const auto thumbnail = decodedQuestion(encoded(Question{kept}));
    ASSERT_TRUE(thumbnail && thumbnail->bound);
    EXPECT_EQ(thumbnail->bound->madeOf, kept.madeOf);
    EXPECT_EQ(thumbnail->bound->fit, PictureBound::Fit::cover);
    EXPECT_FALSE(decodedQuestion(""));
    EXPECT_FALSE(decodedQuestion(encoded(Question{}) + '\0'));
}

TEST(ImageMessagesTest, aSmallPictureIsNoLargerThanWhatWasAskedFor)
{
    const PixelSize most{96, 64};
    const auto none = decodedPictureAnswer(encoded(PictureAnswer{}), most);
    ASSERT_TRUE(none);
    EXPECT_FALSE(none->sizes);
    struct Case {
        const char* name;
        PictureAnswer::Sizes sizes;
        bool isBelieved;
    };
    const Case cases[] = {
        {"as large as that", {{30'000, 1}, {96, 64}}, true},
        {"of many pages", {{595, 842}, {45, 64}, 900}, true},
        {"of fewer pages than none", {{595, 842}, {45, 64}, -1}, false},
        {"wider", {{30'000, 1}, {97, 64}}, false},
        {"higher", {{30'000, 1}, {96, 65}}, false},
        {"without pixels", {{30'000, 1}, {0, 64}}, false},
        {"less than none", {{30'000, 1}, {-96, -64}}, false},
        {"of no picture", {{0, 1}, {96, 64}}, false},
        {"of a picture that nobody has", {{1'000'001, 1}, {96, 64}}, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string bytes = encoded(PictureAnswer{c.sizes});
        const auto heard = decodedPictureAnswer(bytes, most);
        ASSERT_EQ(heard.has_value(), c.isBelieved);
        if (heard) {
            EXPECT_EQ(heard->sizes->whole, c.sizes.whole);
        }
        EXPECT_FALSE(decodedPictureAnswer(bytes.substr(0, bytes.size() - 1), most));
        EXPECT_FALSE(decodedPictureAnswer(bytes + '\0', most));
    }
}

TEST(ImageMessagesTest, everyCutAndEveryByteTooMuchIsRefused)
{
    for (const Answer& answer : {picture(), Answer{ImageAnalysis{}}, Answer{}}) {
        const std::string bytes = encoded(answer);
        ASSERT_LE(bytes.size(), ImageMessages::kLongest);
        for (std::size_t length = 0; length < bytes.size(); ++length)
            ASSERT_FALSE(decodedAnswer(bytes.substr(0, length))) << length;
        EXPECT_FALSE(decodedAnswer(bytes + '\0'));
    }
    EXPECT_FALSE(decodedAnswer(ImageMessages::kReady));
}

TEST(ImageMessagesTest, numbersOutOfRangeAreRefused)
{
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Case {
        const char* name;
        std::string bytes;
    };
    const Case cases[] = {
        {"neither picture nor none", replaced(kHasPicture, std::uint8_t{2})},
        {"negative width", replaced(kWidth, std::int32_t{-1})},
        {"negative height", replaced(kWidth + 4, std::numeric_limits<std::int32_t>::min())},
        {"a width that no picture has", replaced(kWidth, std::numeric_limits<std::int32_t>::max())},
        {"negative sharpness", replaced(kSharpness, -0.1)},
        {"endless sharpness", replaced(kSharpness, kInfinity)},
        {"sharpness that is no number", replaced(kSharpness, std::nan(""))},
        {"a format that nobody knows", replaced(kFormat, std::uint8_t{9})},
        {"traits that nobody knows", replaced(kTraits, std::uint8_t{32})},
        {"a print or not", replaced(kHasPrint, std::uint8_t{255})},
        {"a print without its bytes", replaced(kHasPrint, std::uint8_t{0})},
        {"a direction that no vector has", replaced(kDirection + 5, std::int8_t{-128})},
        {"no direction", replaced(kDirection, FeaturePrint::Direction{})},
        {"a tile with less bytes than there are", replaced(kTileLength, std::uint16_t{4})},
        {"a tile with very many bytes", replaced(kTileLength, std::uint16_t{TileCode::kMostBytes + 1})},
        {"more blocks than there are", replaced(kBlockCount, std::uint8_t{200})},
        {"a block beyond the right edge", replaced(kBlock, std::uint8_t{57})},
        {"a block below the lower edge", replaced(kBlock + 1, std::uint8_t{57})},
        {"more labels than there are", replaced(kLabelCount, std::uint8_t{3})},
        {"fewer labels than there are", replaced(kLabelCount, std::uint8_t{1})},
        {"very many labels", replaced(kLabelCount, std::uint8_t{255})},
        {"an identifier without end", replaced(kLabelCount + 1, std::uint8_t{255})},
        {"an empty identifier", replaced(kLabelCount + 1, std::uint8_t{0})},
        {"an identifier that is no text", replaced(kIdentifier, std::uint8_t{0xFF})},
        {"more than certain", replaced(kIdentifier + 7, 1.01F)},
        {"less than impossible", replaced(kIdentifier + 7, -0.01F)},
        {"confidence that is no number", replaced(kIdentifier + 7, kNan)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_FALSE(decodedAnswer(c.bytes));
    }
    EXPECT_TRUE(decodedAnswer(replaced(kIdentifier + 7, 1.0F))) << "the places of the numbers are right";
}

TEST(ImageMessagesTest, tooManyOrTooLongWordsAreLeftOut)
{
    Answer answer = picture();
    answer.analysis->labels.assign(40, {std::string(64, 'a'), 0.5F});
    answer.analysis->labels.insert(answer.analysis->labels.begin(),
                                   {{std::string(65, 'b'), 0.5F}, {"", 0.5F}});
    const std::string bytes = encoded(answer);
    EXPECT_LE(bytes.size(), ImageMessages::kLongest);
    const auto heard = decodedAnswer(bytes);
    ASSERT_TRUE(heard && heard->analysis);
    ASSERT_EQ(heard->analysis->labels.size(), 32U);
    EXPECT_EQ(heard->analysis->labels.front().identifier, std::string(64, 'a'));
}

} // namespace orlen

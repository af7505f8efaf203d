#include "platform/images/ImageMessages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace orlen {

namespace {

using ImageMessages::Answer;
using ImageMessages::decoded;
using ImageMessages::encoded;

// Where the numbers stand in an answer.
constexpr std::size_t kHasPicture = 0;
constexpr std::size_t kWidth = 1;
constexpr std::size_t kSharpness = 9;
constexpr std::size_t kHasPrint = 17;
constexpr std::size_t kVector = 18;
constexpr std::size_t kLabelCount = kVector + sizeof(FeaturePrint::Vector) + sizeof(FeaturePrint::Tile);
constexpr std::size_t kIdentifier = kLabelCount + 2;

Answer picture()
{
    FeaturePrint::Vector vector{};
    vector[3] = -0.6F;
    vector[127] = 0.8F;
    FeaturePrint::Tile tile{};
    tile.front() = 1;
    tile.back() = 255;
    return {ImageAnalysis{4000, 3000, FeaturePrint(vector, tile), 21.9, {{"receipt", 0.7F}, {"text", 0.1F}}}};
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
    const auto heard = decoded(encoded(picture()));
    ASSERT_TRUE(heard && heard->analysis && heard->analysis->print);
    EXPECT_EQ(heard->analysis->width, 4000);
    EXPECT_EQ(heard->analysis->height, 3000);
    EXPECT_EQ(heard->analysis->sharpness, 21.9);
    EXPECT_EQ(heard->analysis->print->vector(), picture().analysis->print->vector());
    EXPECT_EQ(heard->analysis->print->tile(), picture().analysis->print->tile());
    EXPECT_EQ(heard->analysis->labels, picture().analysis->labels);

    const auto plain = decoded(encoded({ImageAnalysis{}}));
    ASSERT_TRUE(plain && plain->analysis);
    EXPECT_FALSE(plain->analysis->print);
    const auto none = decoded(encoded({}));
    ASSERT_TRUE(none);
    EXPECT_FALSE(none->analysis);
}

TEST(ImageMessagesTest, everyCutAndEveryByteTooMuchIsRefused)
{
    for (const Answer& answer : {picture(), Answer{ImageAnalysis{}}, Answer{}}) {
        const std::string bytes = encoded(answer);
        ASSERT_LE(bytes.size(), ImageMessages::kLongest);
        for (std::size_t length = 0; length < bytes.size(); ++length)
            ASSERT_FALSE(decoded(bytes.substr(0, length))) << length;
        EXPECT_FALSE(decoded(bytes + '\0'));
    }
    EXPECT_FALSE(decoded(ImageMessages::kReady));
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
        {"a print or not", replaced(kHasPrint, std::uint8_t{255})},
        {"a print without its bytes", replaced(kHasPrint, std::uint8_t{0})},
        {"no number in the print", replaced(kVector + 5 * sizeof(float), kNan)},
        {"a long vector", replaced(kVector, -2.0F)},
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
        EXPECT_FALSE(decoded(c.bytes));
    }
    EXPECT_TRUE(decoded(replaced(kIdentifier + 7, 1.0F))) << "the places of the numbers are right";
}

TEST(ImageMessagesTest, tooManyOrTooLongWordsAreLeftOut)
{
    Answer answer = picture();
    answer.analysis->labels.assign(40, {std::string(64, 'a'), 0.5F});
    answer.analysis->labels.insert(answer.analysis->labels.begin(),
                                   {{std::string(65, 'b'), 0.5F}, {"", 0.5F}});
    const std::string bytes = encoded(answer);
    EXPECT_LE(bytes.size(), ImageMessages::kLongest);
    const auto heard = decoded(bytes);
    ASSERT_TRUE(heard && heard->analysis);
    ASSERT_EQ(heard->analysis->labels.size(), 32U);
    EXPECT_EQ(heard->analysis->labels.front().identifier, std::string(64, 'a'));
}

} // namespace orlen

#include "model/MessageText.h"

#include <gtest/gtest.h>

#include <array>

namespace orlen {
namespace {

constexpr Text kWhole = message("Smart clean-up");
constexpr Text kNamed = message("Remove {name}");
constexpr Text kBetween = message("Moved {name} to {folder} today");
constexpr std::array kTexts{kWhole, kNamed, kBetween};

TEST(MessageTextTest, aKeptMessageIsFoundAgainWithItsNames)
{
    const struct {
        const char* kept;
        std::optional<Message> expected;
    } cases[] = {
        {"Smart clean-up", Message(kWhole)},
        {"Smart clean-ups", std::nullopt},
        {"Remove {name}", Message{kNamed, {{"name", "{name}"}}}},
        {"Remove Remove it", Message{kNamed, {{"name", "Remove it"}}}},
        {"Remove ", std::nullopt},
        {"remove it", std::nullopt},
        {"Moved a to b today", Message{kBetween, {{"name", "a"}, {"folder", "b"}}}},
        {"Moved a to b today today", Message{kBetween, {{"name", "a"}, {"folder", "b today"}}}},
        {"Moved a to b", std::nullopt},
        {"Moved a today", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.kept);
        const std::optional<Message> found = MessageText::recognized(c.kept, kTexts);
        EXPECT_EQ(found, c.expected);
        if (found) {
            EXPECT_EQ(found->base(), c.kept);
        }
    }
}

} // namespace
} // namespace orlen

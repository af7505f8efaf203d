#include "platform/values/Uuid.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

TEST(UuidTest, textIsReadBackInEitherCase)
{
    const auto id = Uuid::parse("0123abCD-ef45-6789-0000-ffffFFFFffff");
    ASSERT_TRUE(id);
    EXPECT_EQ(id->text(), "0123ABCD-EF45-6789-0000-FFFFFFFFFFFF");
    EXPECT_EQ(Uuid::parse(id->text()), id);
}

TEST(UuidTest, otherTextsAreNotRead)
{
    for (const char* text :
         {"", "0123ABCD-EF45-6789-0000-FFFFFFFFFFF", "0123ABCD-EF45-6789-0000-FFFFFFFFFFFF0",
          "0123ABCDE-F45-6789-0000-FFFFFFFFFFFF", "{123ABCD-EF45-6789-0000-FFFFFFFFFFF}",
          "0123ABCG-EF45-6789-0000-FFFFFFFFFFFF", "0123ABCDEF4567890000FFFFFFFFFFFF"})
        EXPECT_EQ(Uuid::parse(text), std::nullopt) << text;
}

TEST(UuidTest, randomOnesDifferAndSayTheirVersion)
{
    const Uuid first = Uuid::random();
    EXPECT_NE(first, Uuid::random());
    EXPECT_EQ(first.text()[14], '4');
    EXPECT_NE(std::string("89AB").find(first.text()[19]), std::string::npos);
}

} // namespace
} // namespace orlen

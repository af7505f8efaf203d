#include "window/findings/EntryOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

using testing::ElementsAre;

TEST(EntryOrderTest, setsStandTogetherWhereTheirFirstEntryDoes)
{
    std::vector<FileEntry> entries(5);
    for (const auto& [number, kept] :
         {std::pair(0U, "/a"), std::pair(1U, "/b"), std::pair(3U, "/a"), std::pair(4U, "/b")})
        entries[number].kept = KeptFile{kept, {}};
    EXPECT_THAT(EntryOrder::inSets({0, 1, 2, 3, 4}, entries), ElementsAre(0, 3, 1, 4, 2));
    EXPECT_THAT(EntryOrder::inSets({4, 2, 3, 1}, entries), ElementsAre(4, 1, 2, 3));
    EXPECT_THAT(EntryOrder::inSets({3, 1}, std::vector<FileEntry>(5)), ElementsAre(3, 1));
}

TEST(EntryOrderTest, everyKeyIsRememberedByAWordOfItsOwn)
{
    for (const EntryOrder::Key key : {EntryOrder::Key::size, EntryOrder::Key::name, EntryOrder::Key::date})
        EXPECT_EQ(EntryOrder::keyFrom(EntryOrder::rawValue(key)), key);
    EXPECT_EQ(EntryOrder::keyFrom("nonsense"), std::nullopt);
}

} // namespace orlen

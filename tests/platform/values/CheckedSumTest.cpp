#include "platform/values/CheckedSum.h"

#include <gtest/gtest.h>

#include <limits>

namespace orlen {

TEST(CheckedSumTest, whatADiskTellsIsCutAndNeverWraps)
{
    constexpr std::uint64_t kAll = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(cappedBytes(3, 512), 1536);
    EXPECT_EQ(cappedBytes(std::uint64_t{1} << 44U, 512), kMostBytes);
    EXPECT_EQ(cappedBytes((std::uint64_t{1} << 44U) + 1, 512), kMostBytes) << "one block more";
    EXPECT_EQ(cappedBytes(std::uint64_t{1} << 55U, 512), kMostBytes) << "0 when wrapped";
    EXPECT_EQ(cappedBytes(kAll, kAll), kMostBytes);

    EXPECT_EQ(cappedAdd(1, 2), 3);
    EXPECT_EQ(cappedAdd(kMostBytes - 1, 1), kMostBytes);
    EXPECT_EQ(cappedAdd(kMostBytes, kMostBytes), kMostBytes);
}

} // namespace orlen

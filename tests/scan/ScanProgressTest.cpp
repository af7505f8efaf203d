#include "scan/ScanProgress.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

TEST(ScanProgressTest, pathChangesWithEveryFortyEighthItem)
{
    ScanProgress progress;
    for (int i = 1; i <= 47; ++i)
        progress.tick("early");
    EXPECT_EQ(progress.current(), "");
    progress.tick("the 48th");
    EXPECT_EQ(progress.current(), "the 48th");
    progress.tick(47, [](std::int64_t) { return std::string("not yet"); });
    EXPECT_EQ(progress.current(), "the 48th");
    progress.tick(200, [](std::int64_t item) { return std::to_string(item); });
    EXPECT_EQ(progress.current(), "192") << "95 before it, the 288th in all";
    EXPECT_EQ(progress.files(), 295);
}

} // namespace
} // namespace orlen

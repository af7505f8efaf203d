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

TEST(ScanProgressTest, aLongStepCountsByWhatItHasDone)
{
    ScanProgress progress;
    progress.expect(StepKind::photos, {20, 100});
    EXPECT_DOUBLE_EQ(progress.share(), 0.02);
    progress.advance(StepKind::photos, 30);
    EXPECT_DOUBLE_EQ(progress.share(), 0.05);
    EXPECT_FALSE(progress.timeLeft(StepKind::photos)) << "the pace says little yet";
    progress.advance(StepKind::photos, 500);
    EXPECT_EQ(progress.amount(StepKind::photos), (StepAmount{100, 100}));
    progress.set(StepKind::downloads, StepState::done);
    EXPECT_DOUBLE_EQ(progress.share(), 0.2);
}

} // namespace
} // namespace orlen

#include "scan/ScanEngine.h"

#include "clean/Safety.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace orlen {
namespace {

using namespace std::chrono_literals;

const Finding* find(const std::vector<Finding>& findings, FindingKind kind)
{
    const auto found = std::find_if(findings.begin(), findings.end(),
                                    [&](const Finding& finding) { return finding.kind == kind; });
    return found == findings.end() ? nullptr : &*found;
}

TEST(ScanEngineTest, emptyHomeYieldsNothingAndAllStepsEndDone)
{
    const TempHome home;
    Safety::refresh();
    ScanEngine engine({500'000'000});
    EXPECT_TRUE(engine.run().empty());
    const auto steps = engine.progress().steps();
    ASSERT_EQ(steps.size(), 10);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(steps[i].label, ScanEngine::kSteps[i]);
        EXPECT_EQ(steps[i].state, StepState::done) << steps[i].label;
    }
}

TEST(ScanEngineTest, findingsOfOneKindAreOneFinding)
{
    const TempHome home;
    home.fileOfSize(".cache/thing/x", 1'003'520);
    home.file("p/target/CACHEDIR.TAG", "Signature: 8a477f597d28d172789f06886806bc55\n");
    home.fileOfSize("p/target/x", 2'007'040);
    home.fileOfSize("Documents/a.bin", 2'007'040, 7);
    home.fileOfSize("Downloads/b.bin", 2'007'040, 7);
    Safety::refresh();
    ScanEngine engine({2'000'000});
    const auto findings = engine.run();
    const Finding* caches = find(findings, FindingKind::caches);
    ASSERT_NE(caches, nullptr);
    ASSERT_EQ(caches->items.size(), 2);
    EXPECT_EQ(caches->items[0].path, home.path("p/target")) << "largest first, wherever it came from";
    EXPECT_EQ(caches->items[1].path, home.path(".cache/thing"));
    const Finding* large = find(findings, FindingKind::largeFiles);
    ASSERT_NE(large, nullptr);
    EXPECT_EQ(large->items.size(), 2);
    const Finding* duplicates = find(findings, FindingKind::duplicates);
    ASSERT_NE(duplicates, nullptr);
    ASSERT_EQ(duplicates->items.size(), 1);
    EXPECT_EQ(duplicates->items[0].path, home.path("Downloads/b.bin"));
    EXPECT_EQ(findings.size(), 3);
}

TEST(ScanEngineTest, cancelledScanEndsWithinAFifthOfASecond)
{
    const TempHome home;
    for (int i = 0; i < 20'000; ++i)
        home.file("wide/" + std::to_string(i), "");
    for (int i = 0; i < 4; ++i)
        home.fileOfSize("Documents/" + std::to_string(i), 64'000'000 / 4096 * 4096, 3);
    Safety::refresh();
    for (const auto delay : {0ms, 5ms, 30ms, 80ms}) {
        ScanEngine engine({500'000'000});
        std::chrono::steady_clock::time_point cancelled;
        std::jthread canceller([&] {
            std::this_thread::sleep_for(delay);
            cancelled = std::chrono::steady_clock::now();
            engine.flag().cancel();
        });
        (void)engine.run();
        const auto ended = std::chrono::steady_clock::now();
        canceller.join();
        EXPECT_LT(ended - cancelled, 200ms) << "cancelled after " << delay.count() << " ms";
    }
}

TEST(ScanEngineTest, unusableHomeIsNotScanned)
{
    const TempHome home;
    home.fileOfSize(".cache/thing/x", 1'003'520);
    home.fileOfSize("Documents/a.bin", 2'007'040);
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    Safety::refresh();
    ScanEngine engine({1'000'000});
    EXPECT_TRUE(engine.run().empty());
}

} // namespace
} // namespace orlen

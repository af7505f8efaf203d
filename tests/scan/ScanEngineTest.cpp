#include "scan/ScanEngine.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <set>
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
    for (const ScanStep& step : engine.progress().steps())
        EXPECT_EQ(step.state, StepState::done) << label(step.kind).base();
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
    EXPECT_EQ(large->items.size(), 3) << "the one in the tagged folder stays visible";
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

TEST(ScanEngineTest, everyEntryTellsWhatStoodUnderItsPath)
{
    const TempHome home;
    for (const char* name :
         {".cache/app/x", ".local/share/Trash/files/x", "Documents/large", "Documents/copy", "Downloads/old",
          "tagged/x", ".npm/_cacache/x", "Library/Caches/app/x"})
        home.fileOfSize(name, 2'007'040);
    home.fileOfSize(home.outside("Applications/A.app/Contents/Resources/fr.lproj/x"), 4096);
    home.file("tagged/CACHEDIR.TAG", "Signature: 8a477f597d28d172789f06886806bc55");
    TempHome::setTimes(home.path("Downloads/old"), {}, {});
    Safety::refresh();
    ScanEngine engine({2'000'000});
    std::set<FindingKind> kinds;
    for (const Finding& finding : engine.run()) {
        kinds.insert(finding.kind);
        for (const FileEntry& entry : finding.items)
            EXPECT_EQ(entry.stamp, FileStamp::of(statusOf(entry.path).value())) << entry.path;
    }
    using enum FindingKind;
    EXPECT_EQ(kinds, (std::set{caches, npm, trash, languagePacks, largeFiles, oldDownloads, duplicates}));
}

TEST(ScanEngineTest, foldersThatCannotBeReadAreToldOnce)
{
    const TempHome home;
    const char* const told[] = {".cache/app/inner",   ".local/state",        ".npm",
                                "Documents/a/locked", "Documents/b/bad\xFF", "target/locked"};
    for (const char* name : told)
        home.fileOfSize(std::string(name) + "/x", 4096);
    home.fileOfSize(".cache/app/x", 200'704);
    home.file("target/CACHEDIR.TAG", "Signature: 8a477f597d28d172789f06886806bc55");
    home.folder(".ssh");
    home.folder(".hidden");
    home.folder("p/node_modules");
    for (const char* name : {".ssh", ".hidden", "p/node_modules"})
        TempHome::setMode(home.path(name), 0);
    for (const char* name : told)
        TempHome::setMode(home.path(name), 0);
    home.link(".gradle", home.path("missing"));
    Safety::refresh();
    ScanEngine engine({500'000'000});
    (void)engine.run();
    EXPECT_EQ(engine.unreadable().count(), std::ssize(told));
    std::vector<std::string> expected;
    for (const char* name : told) {
        if (!std::string(name).ends_with('\xFF'))
            expected.push_back(home.path(name));
    }
    std::ranges::sort(expected);
    EXPECT_EQ(engine.unreadable().paths(), expected);

    UnreadableFolders many;
    for (int i = 0; i < 1'500; ++i)
        many.add("/x/" + std::to_string(10'000 + i), EACCES);
    many.add("/x/10000", EIO);
    many.add("/gone", ENOENT);
    EXPECT_EQ(many.count(), 1'500);
    EXPECT_EQ(many.paths().size(), 1'000U);
    EXPECT_EQ(many.paths().back(), "/x/10999");
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

#include "scan/tree/TreeMeasure.h"

#include "clean/Safety.h"
#include "scan/FS.h"
#include "scan/ScanProgress.h"
#include "scan/UnreadableFolders.h"
#include "scan/walk/Walk.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace orlen {
namespace {

/// Allocated bytes as another tool of the system counts them: `stat` on each file.
std::int64_t blocksOf(const std::string& path)
{
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 ? static_cast<std::int64_t>(status.st_blocks) * 512 : 0;
}

TEST(TreeMeasureTest, addsUpFilesOfAWholeTreeAndNothingElse)
{
    const TempHome home;
    std::int64_t expected = 0;
    for (const char* name :
         {"t/a", "t/b/c", "t/b/d e/\xC3\xA9", "t/.hidden/f", "t/b/new\nline", "t/b/bad\xFFname"})
        expected += blocksOf(home.fileOfSize(name, 8192));
    home.folder("t/empty");
    home.link("t/to-file", home.fileOfSize("outside", 40'960));
    home.link("t/to-folder", home.path("t/b"));
    home.link("t/loop", home.path("t"));
    ASSERT_EQ(::mkfifo(home.path("t/fifo").c_str(), 0600), 0);
    EXPECT_EQ(FS::allocatedSize(home.path("t")), expected);
}

TEST(TreeMeasureTest, answersForEveryKindOfPath)
{
    const TempHome home;
    const std::string file = home.fileOfSize("file", 4096);
    home.file("empty", "");
    home.fileOfSize("denied/inside", 4096);
    TempHome::setMode(home.path("denied"), 0);
    home.link("link", file);
    struct Case {
        const char* name;
        const char* path;
        std::int64_t bytes;
    };
    const Case cases[] = {{"a file", "file", blocksOf(file)},
                          {"an empty file", "empty", 0},
                          {"what is missing", "missing", 0},
                          {"an unreadable folder", "denied", 0},
                          {"below a file", "file/x", 0}};
    std::vector<std::string> paths;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(FS::allocatedSize(home.path(c.path)), c.bytes);
        paths.push_back(home.path(c.path));
    }
    const auto together = measureTrees(paths, {});
    for (std::size_t i = 0; i < paths.size(); ++i)
        EXPECT_EQ(together[i], (TreeSize{cases[i].bytes, cases[i].bytes})) << cases[i].name;
    EXPECT_EQ(FS::allocatedSize(home.path("link")), blocksOf(home.path("link")));
    TempHome::setMode(home.path("denied"), 0700);
}

TEST(TreeMeasureTest, onlyFilesWithAllTheirNamesInATreeAreFreedWithIt)
{
    const TempHome home;
    const auto link = [&](const char* from, const char* to) {
        ASSERT_EQ(::link(home.path(from).c_str(), home.path(to).c_str()), 0);
    };
    home.fileOfSize("store/plain", 4096);
    home.fileOfSize("store/inside", 8192);
    home.fileOfSize("store/outside", 16'384);
    home.fileOfSize("store/deep/three", 32'768);
    home.folder("project");
    link("store/inside", "store/deep/inside");
    link("store/outside", "project/outside");
    link("store/outside", "store/outside2");
    link("store/deep/three", "store/three");
    link("store/deep/three", "project/three");
    const std::vector<std::string> paths{home.path("store"), home.path("project"), home.path("store/inside"),
                                         home.path("store/plain")};
    EXPECT_THAT(measureTrees(paths, {}), testing::ElementsAre(TreeSize{61'440, 12'288}, TreeSize{49'152, 0},
                                                              TreeSize{8192, 0}, TreeSize{4096, 4096}));
    EXPECT_EQ(FS::allocatedSize(home.path("store")), 61'440);
}

TEST(TreeMeasureTest, measuresAVeryDeepTreeWithBranchesAtEveryLevel)
{
    const TempHome home;
    // Deeper than a path may be long and, with a waiting branch at every level, than folders may be open.
    constexpr int kDepth = 1'500;
    home.folder("deep");
    int at = ::open(home.path("deep").c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < kDepth; ++level) {
        ASSERT_EQ(::mkdirat(at, "a-branch", 0700), 0);
        ASSERT_EQ(::mkdirat(at, "z-trunk", 0700), 0);
        const int branch = ::openat(at, "a-branch", O_RDONLY | O_DIRECTORY);
        const int file = ::openat(branch, "f", O_WRONLY | O_CREAT, 0600);
        ASSERT_EQ(::write(file, "x", 1), 1);
        ::close(file);
        ::close(branch);
        const int next = ::openat(at, "z-trunk", O_RDONLY | O_DIRECTORY);
        ::close(at);
        at = next;
    }
    ::close(at);
    EXPECT_EQ(FS::allocatedSize(home.path("deep")), kDepth * 4096);
    ASSERT_EQ(std::system(("/bin/rm -rf '" + home.path("deep") + "'").c_str()), 0);
}

/// A chain of folders with long names, a file at its end.
void makeDeepChain(const std::string& folder, int depth, const std::string& name)
{
    int at = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(::mkdirat(at, name.c_str(), 0700), 0);
        const int next = ::openat(at, name.c_str(), O_RDONLY | O_DIRECTORY);
        ::close(at);
        at = next;
    }
    const int file = ::openat(at, "f", O_WRONLY | O_CREAT, 0600);
    ASSERT_EQ(::write(file, "x", 1), 1);
    ::close(file);
    ::close(at);
}

TEST(TreeMeasureTest, deepChainsOfLongNamesNeedLittleMemory)
{
    const TempHome home;
    makeDeepChain(home.folder("work/deep"), 3'000, std::string(200, 'n'));
    home.fileOfSize("work/kept", 1'003'520);
    Safety::refresh();
    const auto peakKilobytes = [] {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    const long before = peakKilobytes();
    ScanProgress progress;
    UnreadableFolders unreadable;
    const Walk::Found found = Walk::home(progress, {}, {.unreadable = &unreadable});
    EXPECT_EQ(FS::allocatedSize(home.path("work/deep")), 4096);
    EXPECT_LT(peakKilobytes() - before, 100'000);
    EXPECT_EQ(found.cands.size(), 1U);
    EXPECT_EQ(unreadable.count(), 0) << "what has no path is left out, not a failure";
    ASSERT_EQ(std::system(("/bin/rm -rf '" + home.path("work/deep") + "'").c_str()), 0);
}

TEST(TreeMeasureTest, measuresManyChildrenTogetherAndEachForItself)
{
    const TempHome home;
    std::vector<std::string> paths;
    std::vector<TreeSize> expected;
    for (int i = 0; i < 300; ++i) {
        const std::string name = "many/" + std::to_string(i);
        home.fileOfSize(name + "/f", 4096 * (1 + i % 3));
        paths.push_back(home.path(name));
        const std::int64_t bytes = blocksOf(home.path(name + "/f"));
        expected.push_back({bytes, bytes});
    }
    EXPECT_EQ(measureTrees(paths, {}), expected);
}

TEST(TreeMeasureTest, stoppedMeasurementEndsAtOnce)
{
    const TempHome home;
    for (int i = 0; i < 3'000; ++i)
        home.file("wide/" + std::to_string(i % 50) + "/" + std::to_string(i));
    std::stop_source source;
    source.request_stop();
    EXPECT_EQ(FS::allocatedSize(home.path("wide"), source.get_token()), 0);
}

TEST(TreeMeasureTest, manyMeasurementsAtOnceDoNotDisturbEachOther)
{
    const TempHome home;
    for (int i = 0; i < 400; ++i)
        home.file("r/" + std::to_string(i % 20) + "/" + std::to_string(i));
    std::vector<std::jthread> threads;
    std::atomic<int> wrong{0};
    for (int i = 0; i < 12; ++i) {
        threads.emplace_back([&, i] {
            for (int round = 0; round < 20; ++round) {
                const auto priority =
                    i % 2 == 0 ? DiskWorkers::Priority::user : DiskWorkers::Priority::utility;
                const std::string path = home.path("r");
                if (measureTrees(std::span(&path, 1), {}, priority).front().held != 400 * 4096)
                    ++wrong;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(wrong.load(), 0);
}

} // namespace
} // namespace orlen

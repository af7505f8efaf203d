#include "scan/FolderTotals.h"

#include "scan/ScanProgress.h"
#include "scan/StorageBreakdown.h"
#include "scan/walk/Walk.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace orlen {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

constexpr std::int64_t kMega = 1'000'000;

FolderReading readingOf(const FolderTotals& totals)
{
    const FolderTotals nothing;
    return FolderTotals::reading(totals, nothing);
}

} // namespace

TEST(FolderTotalsTest, aScanKnowsItsFoldersOnce)
{
    const TempHome home;
    const std::int64_t block = 1'048'576;
    home.fileOfSize("Documents/work/2024/plan", 2 * block);
    home.fileOfSize("Documents/app/target/CACHEDIR.TAG", 4 * block); // counted with Documents
    home.fileOfSize("projects/app/src/a/b/c/deep", 3 * block);
    home.file("projects/app/Cargo.toml");
    home.file("projects/app/target/CACHEDIR.TAG", "Signature: 8a477f597d28d172789f06886806bc55");
    home.fileOfSize("projects/app/target/debug/x", 5 * block);
    home.fileOfSize("projects/bad\xff/y", 6 * block);
    home.fileOfSize(".var/app/org.a.App/data/x", block);
    home.fileOfSize(".var/app/org.a.App/cache/x", 10 * block);
    const std::string file = home.fileOfSize("linked/one/x", 7 * block);
    ASSERT_EQ(::link(file.c_str(), home.path("linked/x").c_str()), 0);

    FolderTotals walked;
    FolderTotals listed;
    ScanProgress progress;
    (void)Walk::home(progress, {}, {.totals = &walked});
    (void)StorageBreakdown::compute({}, listed);
    const FolderReading reading = FolderTotals::reading(walked, listed);
    const auto bytes = [&](const std::string& path) {
        const auto found = std::ranges::find(reading.folders, home.path(path), &FolderSize::path);
        return found == reading.folders.end() ? -1 : found->bytes / block;
    };
    EXPECT_EQ(bytes("Documents"), 6);
    EXPECT_EQ(bytes("Documents/work/2024"), 2);
    EXPECT_EQ(bytes("projects"), 14);
    EXPECT_EQ(bytes("projects/app"), 8);
    EXPECT_EQ(bytes("projects/app/target"), 5);
    EXPECT_EQ(bytes("projects/app/src/a"), 3);
    EXPECT_EQ(bytes("projects/app/src/a/b"), -1) << "too deep";
    EXPECT_EQ(bytes(".var/app"), 11);
    EXPECT_EQ(bytes(".var/app/org.a.App"), 11) << "with the cache in it, which is a root of its own";
    EXPECT_EQ(bytes(".var/app/org.a.App/cache"), 10);
    EXPECT_EQ(bytes("linked"), 7);
    EXPECT_EQ(bytes(""), 38) << "all of them";
    EXPECT_TRUE(std::ranges::is_sorted(reading.folders, {}, &FolderSize::path));
}

TEST(FolderTotalsTest, theLargestFoldersAndAllRootsAreListed)
{
    FolderTotals totals;
    const auto root = totals.addRoot("/r");
    const auto small = totals.addRoot("/s");
    for (int i = 1; i <= 1'000; ++i)
        totals.add(totals.child(root, "f" + std::to_string(i)), i * kMega);
    totals.add(small, kMega);
    const FolderReading reading = readingOf(totals);
    EXPECT_THAT(reading.folders, SizeIs(400));
    EXPECT_THAT(reading.folders, Contains(FolderSize{"/s", kMega}));
    EXPECT_EQ(reading.least, 602 * kMega + 1);
    EXPECT_THAT(reading.folders, Contains(FolderSize{"/r/f603", 603 * kMega}));
    EXPECT_THAT(reading.folders, Not(Contains(FolderSize{"/r/f602", 602 * kMega})));
}

TEST(FolderTotalsTest, rootsInEachOtherAddUp)
{
    FolderTotals outer;
    FolderTotals inner;
    const auto home = outer.addRoot("/h");
    outer.add(outer.child(home, "a"), 4 * kMega);
    inner.add(inner.addRoot("/h/a/b"), 2 * kMega);
    inner.add(inner.addRoot("/h/a/b/c/d"), kMega);
    inner.add(inner.addRoot("/hh"), 9 * kMega);
    EXPECT_THAT(FolderTotals::reading(outer, inner).folders,
                ElementsAre(FolderSize{"/h", 7 * kMega}, FolderSize{"/h/a", 7 * kMega},
                            FolderSize{"/h/a/b", 3 * kMega}, FolderSize{"/h/a/b/c/d", kMega},
                            FolderSize{"/hh", 9 * kMega}));
}

} // namespace orlen

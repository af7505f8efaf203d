#include "scan/tree/TreeScan.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <unistd.h>

namespace orlen {
namespace {

/// Notes everything it is told.
class Recorder : public TreeVisitor {
public:
    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t marks) override
    {
        if (onEnter)
            onEnter(parent.pathOf(name));
        return parent.tag() | marks;
    }
    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        const std::lock_guard guard(lock);
        for (const TreeFile& file : files)
            EXPECT_TRUE(seen.insert(folder.pathOf(file.name)).second) << file.name << " was told twice";
    }
    void listed(const TreeFolder& /*folder*/, const FolderChunk& chunk) override
    {
        chunk.forEach([&](const FolderEntry&) { ++entries; });
    }

    std::function<void(const std::string&)> onEnter;
    std::mutex lock;
    std::set<std::string> seen;
    std::atomic<std::int64_t> entries{0};
};

TEST(TreeScanTest, tellsEveryFileOnceAlsoInAFolderOfManyBuffers)
{
    const TempHome home;
    std::set<std::string> expected;
    for (int i = 0; i < 5'000; ++i)
        expected.insert(home.file("wide/a-rather-long-name-to-fill-the-buffers-" + std::to_string(i), ""));
    expected.insert(home.file("wide/sub/x"));
    const TreeRoot root{home.path("wide")};
    Recorder recorder;
    scanTrees(std::span(&root, 1), recorder, MountTable(), {}, {});
    EXPECT_EQ(recorder.seen, expected);
    EXPECT_EQ(recorder.entries.load(), 5'002);
}

TEST(TreeScanTest, leavesOutMarkedFoldersAndForeignMountsWithoutTouchingThem)
{
    const TempHome home;
    home.file("r/kept/x");
    home.file("r/skipped/x");
    home.file("r/server/x");
    home.file("r/disk/x");
    const MountTable mounts = MountTable::read(
        home.file("mountinfo", "1 0 0:1 / / rw - ext4 /dev/a rw\n2 1 0:2 / " + home.path("r/server") +
                                   " rw - nfs4 host:/x rw\n3 1 0:3 / " + home.path("r/disk") +
                                   " rw - xfs /dev/b rw\n"));
    PathMarks marks;
    marks.mark(home.path("r/skipped"), PathMarks::kSkip);
    TreeScanOptions options;
    options.marks = &marks;
    const TreeRoot root{home.path("r")};
    Recorder recorder;
    scanTrees(std::span(&root, 1), recorder, mounts, options, {});
    EXPECT_EQ(recorder.seen, (std::set<std::string>{home.path("r/kept/x"), home.path("r/disk/x")}));
}

TEST(TreeScanTest, doesNotFollowALinkThatTookAFoldersPlace)
{
    const TempHome home;
    home.file("secret/x");
    home.folder("r/victim");
    const TreeRoot root{home.path("r")};
    Recorder recorder;
    // Between the listing, which saw a folder, and the opening.
    recorder.onEnter = [&](const std::string& path) {
        ASSERT_EQ(::rmdir(path.c_str()), 0);
        home.link(path, home.path("secret"));
    };
    scanTrees(std::span(&root, 1), recorder, MountTable(), {}, {});
    EXPECT_TRUE(recorder.seen.empty());
}

TEST(TreeScanTest, stopsSoonInTheMiddle)
{
    const TempHome home;
    for (int i = 0; i < 2'000; ++i)
        home.file("r/" + std::to_string(i) + "/x");
    std::stop_source source;
    const TreeRoot root{home.path("r")};
    Recorder recorder;
    std::atomic<int> entered{0};
    recorder.onEnter = [&](const std::string& /*path*/) {
        if (++entered == 100)
            source.request_stop();
    };
    scanTrees(std::span(&root, 1), recorder, MountTable(), {}, source.get_token());
    EXPECT_LT(entered.load(), 200);
}

} // namespace
} // namespace orlen

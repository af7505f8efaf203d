#include "scan/locations/SourceMap.h"

#include "clean/Safety.h"
#include "platform/desktop/RecentDocuments.h"
#include "platform/text/PathText.h"
#include "scan/ScanProgress.h"
#include "scan/locations/LocationScanners.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace orlen {
namespace {

constexpr std::int64_t kBlockBytes = 4096;

/// What all scanners offer together.
std::vector<std::string> allPaths()
{
    ScanProgress progress;
    const LocationScanners scanners(progress, {});
    std::vector<std::string> paths;
    for (const auto& findings :
         {scanners.cachesAndLogs(), scanners.backups(), scanners.developer(), scanners.packageCaches(),
          scanners.trashAndMail(),
          scanners.downloads(std::chrono::system_clock::now() + std::chrono::days(60), RecentDocuments())}) {
        for (const Finding& finding : findings) {
            for (const FileEntry& entry : finding.items)
                paths.push_back(entry.path);
        }
    }
    return paths;
}

TEST(SourceMapTest, variablesThatNestPlacesMakeNoEntryOverlap)
{
    struct Case {
        const char* name;
        const char* caches;
        const char* data;
        const char* states;
    };
    constexpr Case cases[] = {
        {"nothing moved", ".cache", ".local/share", ".local/state"},
        {"the Mac's cache folder", "Library/Caches", ".local/share", ".local/state"},
        {"caches in caches", ".cache/a/b", ".local/share", ".local/state"},
        {"everything in one place", "x", "x", "x"},
        {"states and data in the caches", ".cache", ".cache/a/data", ".cache/a/state"},
        {"caches and states in the Trash", ".Trash/a/cache", ".local/share", ".Trash/a/state"},
        {"caches in the npm cache", ".npm/_cacache/c", ".npm/_cacache", ".npm"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        TempHome::setVariable("XDG_CACHE_HOME", home.path(c.caches));
        TempHome::setVariable("XDG_DATA_HOME", home.path(c.data));
        TempHome::setVariable("XDG_STATE_HOME", home.path(c.states));
        for (const char* folder : {c.caches, ".cache", "Library/Caches", c.data, c.states}) {
            for (const char* name :
                 {"pip/x", "uv/x", "yarn/x", "Yarn/x", "rclone/x", "app/x.log", "app/sub/logs/x",
                  "pnpm/store/x", "Homebrew/x", "Trash/files/x", "plain/x"})
                home.fileOfSize(std::string(folder) + "/" + name, 250 * kBlockBytes);
        }
        home.fileOfSize(".npm/_cacache/x", kBlockBytes);
        TempHome::reloadPlaces();
        Safety::refresh();
        const std::vector<std::string> paths = allPaths();
        EXPECT_GT(paths.size(), 5U);
        for (const std::string& a : paths) {
            EXPECT_EQ(std::count_if(paths.begin(), paths.end(),
                                    [&](const std::string& b) { return PathText::isAtOrBelow(b, a); }),
                      1)
                << a;
        }
        EXPECT_THAT(paths, testing::Not(testing::Contains(home.path(std::string(c.caches) + "/rclone"))));
    }
}

} // namespace
} // namespace orlen

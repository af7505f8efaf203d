#include "scan/walk/Walk.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "scan/ScanProgress.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace orlen {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t kJustCand = 1'003'520; // 245 blocks of 4,096: the first size on disk over 1,000,000
constexpr std::int64_t kJustBelow = 999'424;  // 244 of them
constexpr std::int64_t kJustImage = 20'480;

class WalkTest : public testing::Test {
protected:
    Walk::Found walk()
    {
        Safety::refresh();
        return Walk::home(progress, {});
    }

    /// Paths relative to the home folder.
    [[nodiscard]] std::vector<std::string> names(const std::vector<Cand>& cands) const
    {
        std::vector<std::string> names;
        for (const Cand& cand : cands)
            names.push_back(cand.path.substr(home.path().size() + 1));
        return names;
    }

    TempHome home;
    ScanProgress progress;
};

TEST_F(WalkTest, collectsLargeEnoughFilesWithTheirSizes)
{
    home.fileOfSize("Documents/on", kJustCand);
    home.fileOfSize("Documents/below", kJustBelow);
    home.fileOfSize("work/deep/er/on", kJustCand);
    home.fileOfSize("directly.iso", kJustCand);
    const auto found = walk();
    EXPECT_THAT(names(found.cands), ElementsAre("Documents/on", "directly.iso", "work/deep/er/on"));
    EXPECT_EQ(found.cands.front().size, kJustCand);
    EXPECT_EQ(progress.files(), 8) << "files and folders met";
}

TEST_F(WalkTest, onlyWhatIsMetIsCountedAndShownByItsOwnPath)
{
    for (const char* name : {".hidden/x", ".file", "Library/x", "work/.git/x", "work/.env", "work/Tool.app/x",
                             "work/node_modules/x"})
        home.file(name);
    (void)walk();
    EXPECT_EQ(progress.files(), 3) << "the folder, the package and the modules, but not what is in them";
    for (int i = 0; i < 60; ++i)
        home.file("work/item" + std::to_string(i));
    (void)walk();
    EXPECT_TRUE(progress.current().starts_with(home.path("work/"))) << progress.current();
}

TEST_F(WalkTest, leavesOutWhatIsNotTheUsersToTidy)
{
    const char* const leftOut[] = {
        ".hidden-file",       ".hidden/x",
        "Library/x",          "Applications/x",
        "Public/x",           "snap/x",
        "work/.git/x",        "work/node_modules/m/x",
        "work/__pycache__/x", "work/Tool.app/x",
        "work/a.AppDir/x",    "env/site-packages/x",
        "Dropbox/x",          "synced/x",
        "work/venv/lib/x",    "tool/bin/x",
        "bare.git/objects/x", "store/objects/ab/x",
        "a.photoslibrary/x",  "work/a.icloud",
        "work/bad\xFFname",   "con/conda-meta/x",
    };
    for (const char* name : leftOut)
        home.fileOfSize(name, kJustCand);
    home.file("synced/.stfolder/marker");
    home.file("work/venv/pyvenv.cfg");
    TempHome::setMode(home.file("tool/AppRun"), 0755);
    home.file("bare.git/HEAD");
    home.folder("bare.git/refs");
    home.file("store/config");
    home.fileOfSize("work/kept", kJustCand);
    home.file("work/HEAD");
    home.file("work/config");
    EXPECT_THAT(names(walk().cands), ElementsAre("work/kept"));
}

TEST_F(WalkTest, similarNamesAreWalked)
{
    const char* const walked[] = {"Dropboxes/x",       "Pictures/Library/x", "a/Public/x",
                                  "a/my.app.d/x",      "a/node_modules2/x",  "heads/HEAD/x",
                                  "run/AppRun-notes/x"};
    for (const char* name : walked)
        home.fileOfSize(name, kJustCand);
    home.file("a/AppRun"); // not executable
    EXPECT_EQ(walk().cands.size(), std::size(walked));
}

TEST_F(WalkTest, fileWithSeveralNamesIsFoundOnceUnderTheFirst)
{
    const std::string path = home.fileOfSize("b/name", kJustCand);
    home.folder("a");
    ASSERT_EQ(::link(path.c_str(), home.path("a/zzz").c_str()), 0);
    ASSERT_EQ(::link(path.c_str(), home.path("c").c_str()), 0);
    EXPECT_THAT(names(walk().cands), ElementsAre("a/zzz"));
}

TEST_F(WalkTest, linksAreNotFollowed)
{
    home.fileOfSize("Library/x", kJustCand);
    home.link("link", home.path("Library"));
    home.link("up", home.path());
    home.link("file", home.path("Library/x"));
    EXPECT_THAT(walk().cands, IsEmpty());
}

TEST_F(WalkTest, imagesAreCollectedInImageFoldersOnly)
{
    home.fileOfSize("Pictures/on.PNG", kJustImage);
    home.fileOfSize("Pictures/deep/er/on.heic", kJustImage);
    home.fileOfSize("Pictures/on.avif", kJustImage);
    home.fileOfSize("Pictures/on.jxl", kJustImage);
    home.fileOfSize("Pictures/below.png", 16'384);
    home.fileOfSize("Pictures/not.txt", kJustImage);
    home.fileOfSize("project/icon.png", kJustImage);
    home.fileOfSize("Downloads/large.jpg", kJustCand);
    home.fileOfSize("Bilder/in-bild.jpg", kJustImage);
    home.file(".config/user-dirs.dirs", "XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
    TempHome::reloadPlaces();
    const auto found = walk();
    EXPECT_THAT(names(found.images),
                ElementsAre("Bilder/in-bild.jpg", "Downloads/large.jpg", "Pictures/deep/er/on.heic",
                            "Pictures/on.PNG", "Pictures/on.avif", "Pictures/on.jxl"));
    EXPECT_THAT(names(found.cands), ElementsAre("Downloads/large.jpg"));
    EXPECT_EQ(Walk::duplicateInput(found).size(), 6) << "the large image once";
}

TEST_F(WalkTest, allImagesAreFoundHoweverMany)
{
    for (int i = 0; i < 1'520; ++i)
        home.fileOfSize("Pictures/" + std::to_string(10'000 + i) + ".png", kJustImage);
    const auto found = walk();
    ASSERT_EQ(found.images.size(), 1'520);
    EXPECT_EQ(found.images.front().path, home.path("Pictures/10000.png"));
    EXPECT_EQ(found.images.back().path, home.path("Pictures/11519.png"));
}

TEST_F(WalkTest, taggedCachesAreOfferedWholeForReview)
{
    const std::string tag = "Signature: 8a477f597d28d172789f06886806bc55";
    home.file("p/target/CACHEDIR.TAG", tag + "\n# made by a build tool\n");
    home.fileOfSize("p/target/x", kJustCand);
    home.file("small/CACHEDIR.TAG", tag);
    home.file("forged/CACHEDIR.TAG", "Signature: 0");
    home.fileOfSize("forged/x", kJustCand);
    home.link("linked/CACHEDIR.TAG", home.path("small/CACHEDIR.TAG"));
    home.fileOfSize("linked/x", kJustCand);
    const auto found = walk();
    EXPECT_THAT(names(found.cands), ElementsAre("forged/x", "linked/x"));
    ASSERT_EQ(found.caches.size(), 1);
    const FileEntry& entry = found.caches.front();
    EXPECT_EQ(entry.path, home.path("p/target"));
    EXPECT_EQ(entry.size, kJustCand + 4096);
    EXPECT_EQ(entry.rating, Rating::review);
    EXPECT_EQ(noteOf(entry).base(), "Marked as a cache");
    EXPECT_EQ(entry.stamp, FileStamp::of(statusOf(entry.path).value()));
}

TEST_F(WalkTest, taggedFoldersInUseAreLeftAloneAndLargeFilesInAnyStayVisible)
{
    const std::string tag = "Signature: 8a477f597d28d172789f06886806bc55";
    for (const char* folder : {"venv", "conda", "repo", "locked", "machines", "linked"})
        home.file(folder + std::string("/CACHEDIR.TAG"), tag);
    home.file("venv/pyvenv.cfg");
    home.folder("conda/conda-meta");
    home.folder("repo/.git");
    for (const char* name : {"venv/x", "conda/x", "repo/x", "locked/x", "machines/a/disk.img",
                             "machines/.hidden/x", "machines/Tool.app/x", "machines/venv/lib/x"})
        home.fileOfSize(name, 3 * kJustCand);
    home.file("machines/venv/pyvenv.cfg");
    home.fileOfSize("machines/small", kJustCand);
    ASSERT_EQ(::link(home.path("machines/a/disk.img").c_str(), home.path("machines/a/disk2.img").c_str()), 0);
    home.fileOfSize("elsewhere", 3 * kJustCand);
    ASSERT_EQ(::link(home.path("elsewhere").c_str(), home.path("linked/x").c_str()), 0);
    TempHome::setMode(home.path("locked"), 0555);
    Safety::refresh();
    const auto found = Walk::home(progress, {}, {.largeBytes = 2 * kJustCand});
    EXPECT_THAT(names(found.cands), ElementsAre("elsewhere", "repo/x"));
    EXPECT_THAT(names(found.largeInCaches), ElementsAre("locked/x", "machines/a/disk.img"));
    ASSERT_EQ(found.caches.size(), 1U) << "neither what is in use, cannot be moved nor would free nothing";
    EXPECT_EQ(found.caches[0].path, home.path("machines"));
    EXPECT_GT(found.caches[0].size, 12 * kJustCand) << "all of it";
}

TEST_F(WalkTest, hiddenCachesAreCollectedWhenTheyOrTheirProjectSaySo)
{
    const std::string tag = "Signature: 8a477f597d28d172789f06886806bc55";
    for (const char* folder : {"a/.mypy_cache", "a/.tox", "b/.tox", "c/.nox", "d/.terragrunt-cache", "e/.nox",
                               "f/.ruff_cache", "g/.pytest_cache", "h/.tox"})
        home.fileOfSize(folder + std::string("/x"), kJustCand);
    home.file("a/.mypy_cache/CACHEDIR.TAG", tag);
    home.file("a/pyproject.toml");
    home.file("b/tox.ini");
    home.file("c/noxfile.py");
    home.file("d/terragrunt.hcl");
    home.file("e/tox.ini");
    home.file("f/.ruff_cache/CACHEDIR.TAG", "Signature: 0");
    home.file("g/.pytest_cache/CACHEDIR.TAG", tag);
    home.folder("g/.pytest_cache/.git");
    home.link("i/.mypy_cache", home.path("a/.mypy_cache"));
    std::vector<std::pair<std::string, std::string>> caches;
    for (const FileEntry& entry : walk().caches) {
        EXPECT_EQ(entry.rating, Rating::review);
        caches.emplace_back(entry.path.substr(home.path().size() + 1), noteOf(entry).base());
    }
    const std::string again = "Downloaded or built again";
    EXPECT_THAT(caches, testing::UnorderedElementsAre(std::pair("a/.mypy_cache", "Marked as a cache"),
                                                      std::pair("a/.tox", again), std::pair("b/.tox", again),
                                                      std::pair("c/.nox", again),
                                                      std::pair("d/.terragrunt-cache", again)));
}

TEST_F(WalkTest, cachesOfProjectsAreCollectedAndNotWalked)
{
    const char* const caches[] = {"Videos/CacheClip", "Videos/film/ProxyMedia",  "game/.godot",
                                  "town/Library",     "unreal/DerivedDataCache", "unreal/Intermediate"};
    const char* const walked[] = {"Videos/film/cut/ProxyMedia", "elsewhere/CacheClip", "other/Intermediate",
                                  "other/Library", "unity/Library"};
    for (const char* folder : caches)
        home.fileOfSize(folder + std::string("/x"), kJustCand);
    for (const char* folder : walked)
        home.fileOfSize(folder + std::string("/x"), kJustCand);
    home.file("game/project.godot");
    home.file("town/ProjectSettings/ProjectVersion.txt");
    home.file("unreal/Town.uproject");
    home.file("other/uproject");
    home.file("unity/ProjectSettings/ProjectVersion.txt");
    home.folder("unity/Library/.git");
    Safety::refresh();
    const auto found = Walk::home(progress, {}, {.largeBytes = kJustCand});
    std::vector<std::string> collected;
    for (const FileEntry& entry : found.caches)
        collected.push_back(entry.path.substr(home.path().size() + 1));
    EXPECT_THAT(collected, testing::UnorderedElementsAreArray(caches));
    std::vector<std::string> expected;
    for (const char* folder : walked)
        expected.push_back(folder + std::string("/x"));
    EXPECT_THAT(names(found.cands), testing::UnorderedElementsAreArray(expected));
    EXPECT_EQ(found.largeInCaches.size(), std::size(caches)) << "large files stay visible";
}

TEST_F(WalkTest, filesOfRepositoriesAreMarkedButNotThoseOfARepositoryOfTheHomeFolder)
{
    home.folder(".git");
    home.folder("src/p/.git");
    home.file("src/linked/.git", "gitdir: elsewhere");
    for (const char* name : {"src/p/deep/x", "src/linked/x", "src/p-x", "loose"})
        home.fileOfSize(name, kJustCand);
    std::vector<std::string> marked;
    for (const Cand& cand : walk().cands) {
        if (cand.isInRepository)
            marked.push_back(cand.path);
    }
    EXPECT_THAT(marked, ElementsAre(home.path("src/linked/x"), home.path("src/p/deep/x")));
    const auto inside = Walk::folders({home.path("src/p/deep")}, progress, {});
    ASSERT_EQ(inside.cands.size(), 1U);
    EXPECT_TRUE(inside.cands.front().isInRepository) << "the repository begins above";
}

TEST_F(WalkTest, givenFoldersAreWalkedWithoutTheTopLevelRules)
{
    home.fileOfSize("Library/x", kJustCand);
    home.fileOfSize("project/icon.png", kJustImage);
    home.fileOfSize("project/snap/x", kJustCand);
    home.fileOfSize("project/.hidden/x", kJustCand);
    Safety::refresh();
    const auto found =
        Walk::folders({home.path("project"), home.path("Library"), home.path("project/snap")}, progress, {});
    EXPECT_THAT(names(found.cands), ElementsAre("Library/x", "project/snap/x"));
    EXPECT_THAT(names(found.images), ElementsAre("project/icon.png"));
}

TEST_F(WalkTest, cancelledWalkEndsWithinAFifthOfASecond)
{
    for (int i = 0; i < 20'000; ++i)
        home.file("wide/" + std::to_string(i), "");
    std::stop_source source;
    std::jthread canceller([&] {
        while (progress.files() == 0)
            std::this_thread::yield();
        source.request_stop();
    });
    Safety::refresh();
    const auto start = std::chrono::steady_clock::now();
    const auto found = Walk::home(progress, source.get_token());
    EXPECT_LT(std::chrono::steady_clock::now() - start, 200ms + 200ms) << "the walk itself and its end";
}

} // namespace
} // namespace orlen

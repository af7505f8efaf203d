#include "clean/TrashFixture.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>
#include <set>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using std::chrono::seconds;
using testing::ElementsAre;
using testing::IsEmpty;

class TrashTest : public TrashFixture {};

} // namespace

TEST_F(TrashTest, everyKindOfEntryGoesInAndComesBackAsItself)
{
    const std::string file = home.file("work/file", "content");
    const std::string paths[] = {file, home.folder("work/empty"), home.folder("work/full"),
                                 home.link("work/link", file), home.link("work/dangling", "nowhere")};
    (void)home.file("work/full/inside");
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        const FileIdentity before = identity(path);
        const std::string in = trashed(path);
        EXPECT_FALSE(TempHome::exists(path));
        EXPECT_EQ(identity(in), before);
        EXPECT_EQ(Trash::originalPath(in), path);
        ASSERT_TRUE(Trash::moveBack(in, path, now()).ok());
        EXPECT_EQ(identity(path), before);
    }
    EXPECT_THAT(listNames(files()), IsEmpty());
    EXPECT_THAT(listNames(info()), IsEmpty());
}

TEST_F(TrashTest, foldersAndInfoFilesAreForTheUserAlone)
{
    const std::string in = trashed(home.file("a"));
    for (const std::string& folder : {trash, files(), info()})
        EXPECT_EQ(statusOf(folder).value().mode, 0700U) << folder;
    EXPECT_EQ(statusOf(infoFile(in)).value().mode, 0600U);
}

TEST_F(TrashTest, aTakenNameGetsANumberBeforeTheFirstDot)
{
    struct Case {
        const char* name;
        const char* second;
        const char* third;
    };
    constexpr Case cases[] = {{"a.tar.gz", "a.2.tar.gz", "a.3.tar.gz"},
                              {".bashrc", ".2.bashrc", ".3.bashrc"},
                              {"plain", "plain.2", "plain.3"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        for (const char* expected : {c.name, c.second, c.third}) {
            const std::string path = home.file("from-" + std::string(expected) + "/" + c.name);
            const std::string in = trashed(path);
            EXPECT_EQ(in, files() + "/" + expected);
            EXPECT_EQ(Trash::originalPath(in), path);
        }
    }
}

TEST_F(TrashTest, neitherAnOrphanNorALeftoverInfoFileIsOverwritten)
{
    (void)home.file(files() + "/a", "orphan");
    (void)home.file(info() + "/a.2.trashinfo", "left by a crash");
    EXPECT_EQ(trashed(home.file("a", "mine")), files() + "/a.3");
    EXPECT_EQ(TempHome::content(files() + "/a"), "orphan");
    EXPECT_EQ(TempHome::content(info() + "/a.2.trashinfo"), "left by a crash");
    EXPECT_FALSE(TempHome::exists(info() + "/a.trashinfo"));
}

TEST_F(TrashTest, oddNamesAreEncodedAndComeBack)
{
    struct Case {
        const char* name;
        const char* encoded;
    };
    const std::string longest = std::string(251, 'n') + ".odt";
    const Case cases[] = {{"a b", "a%20b"},
                          {"100%", "100%25"},
                          {"c++#1", "c%2B%2B%231"},
                          {"two\nlines", "two%0Alines"},
                          {"\xF0\x9F\x97\x91", "%F0%9F%97%91"},
                          {"~A-z_0.9", "~A-z_0.9"},
                          {longest.c_str(), longest.c_str()}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string path = home.file(c.name);
        const std::string in = trashed(path);
        EXPECT_TRUE(pathLine(in).ends_with("/home/" + std::string(c.encoded))) << pathLine(in);
        EXPECT_TRUE(Trash::moveBack(in, path, now()).ok());
        EXPECT_TRUE(TempHome::exists(path));
    }
}

TEST_F(TrashTest, aLongNameIsCutBetweenCharactersSoThatItsInfoFileFits)
{
    std::string cheese;
    for (int count = 0; count < 62; ++count)
        cheese += "\xF0\x9F\xA7\x80";
    struct Case {
        const char* label;
        std::string name;
        std::size_t length;
        const char* ending;
    };
    const Case cases[] = {{"as long as fits", std::string(245, 'n'), 245, "n"},
                          {"one byte longer", std::string(246, 'm'), 245, "m"},
                          {"keeps the extension", std::string(251, 'n') + ".odt", 245, "n.odt"},
                          {"four-byte characters", cheese + ".x", 4 * 60 + 2, "\xF0\x9F\xA7\x80.x"},
                          {"a dot early in a sentence", "a." + std::string(250, 'n'), 245, "n"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        const std::string name(PathText::lastComponent(trashed(home.file(c.name))));
        EXPECT_EQ(name.size(), c.length);
        EXPECT_TRUE(name.ends_with(c.ending));
        EXPECT_TRUE(PathText::isValidUtf8(name));
        EXPECT_LE(PathText::lastComponent(trashed(home.file(c.name))).size(), 245U); // with a number in it
    }
}

TEST_F(TrashTest, threadsThatTrashOneNameAtOnceLoseNothing)
{
    constexpr int kThreads = 4;
    constexpr int kEach = 25;
    const auto pathOf = [&](int thread, int item) {
        return home.path(std::to_string(thread) + "/" + std::to_string(item) + "/same.txt");
    };
    std::vector<std::vector<std::string>> places(kThreads);
    for (int thread = 0; thread < kThreads; ++thread) {
        for (int item = 0; item < kEach; ++item)
            (void)home.file(pathOf(thread, item), pathOf(thread, item));
    }
    {
        std::vector<std::jthread> threads;
        threads.reserve(kThreads);
        for (int thread = 0; thread < kThreads; ++thread)
            threads.emplace_back([&, thread] {
                for (int item = 0; item < kEach; ++item)
                    places[static_cast<std::size_t>(thread)].push_back(trashed(pathOf(thread, item)));
            });
    }
    std::set<std::string> distinct;
    for (const auto& some : places) {
        for (const std::string& place : some) {
            distinct.insert(place);
            EXPECT_EQ(TempHome::content(place), Trash::originalPath(place));
        }
    }
    EXPECT_EQ(distinct.size(), static_cast<std::size_t>(kThreads * kEach));
    EXPECT_EQ(listNames(info()).size(), distinct.size());
}

TEST_F(TrashTest, ofTwoThreadsThatTrashOneFileOnlyOneSucceeds)
{
    for (int round = 0; round < 20; ++round) {
        const std::string path = home.file("contested-" + std::to_string(round));
        int successes[2] = {0, 0};
        {
            std::vector<std::jthread> threads;
            threads.reserve(2);
            for (int& success : successes)
                threads.emplace_back([&] { success = Trash::moveIn(path).ok() ? 1 : 0; });
        }
        EXPECT_EQ(successes[0] + successes[1], 1);
        EXPECT_FALSE(TempHome::exists(path));
        EXPECT_EQ(listNames(files()).size(), static_cast<std::size_t>(round + 1));
        EXPECT_EQ(listNames(info()).size(), static_cast<std::size_t>(round + 1));
    }
}

TEST_F(TrashTest, whatMayNotBeMovedStaysAndLeavesNoInfoFile)
{
    const std::string inside = home.file("locked/file");
    const std::string folder = home.folder("sealed");
    TempHome::setMode(home.path("locked"), 0555);
    TempHome::setMode(folder, 0555);
    for (const std::string& path : {inside, folder}) {
        EXPECT_EQ(Trash::moveIn(path).error(), EACCES) << path;
        EXPECT_TRUE(TempHome::exists(path));
    }
    EXPECT_THAT(listNames(info()), IsEmpty());
}

TEST_F(TrashTest, anInfoFileThatCannotBeWrittenWhollyLeavesTheEntryAlone)
{
    const std::string path = home.file("a");
    ASSERT_TRUE(Trash::moveBack(trashed(path), path, now()).ok());
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{20, before.rlim_max}; // breaks off in the middle of the second line
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    const auto moved = Trash::moveIn(path);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    (void)std::signal(SIGXFSZ, handler);
    EXPECT_EQ(moved.error(), EFBIG);
    EXPECT_TRUE(TempHome::exists(path));
    EXPECT_THAT(listNames(info()), IsEmpty());
    EXPECT_THAT(listNames(files()), IsEmpty());
}

TEST_F(TrashTest, missingPartsOfTheTrashAreMadeAgain)
{
    const std::string first = trashed(home.file("a"));
    ASSERT_EQ(std::rename(info().c_str(), home.path("info-elsewhere").c_str()), 0);
    EXPECT_EQ(Trash::originalPath(trashed(home.file("b"))), home.path("b"));
    ASSERT_EQ(std::rename(trash.c_str(), home.path("trash-elsewhere").c_str()), 0);
    EXPECT_EQ(Trash::moveBack(first, home.path("a"), now()).error(), ENOENT);
    EXPECT_EQ(Trash::originalPath(trashed(home.file("c"))), home.path("c"));
}

TEST_F(TrashTest, aLinkInsteadOfTheTrashIsUsedWhenItLeadsToAFolderOfTheUsers)
{
    (void)home.folder("elsewhere");
    (void)home.link(".local/share/Trash", home.path("elsewhere"));
    const std::string in = trashed(home.file("a"));
    EXPECT_EQ(in, files() + "/a");
    EXPECT_TRUE(TempHome::exists(home.path("elsewhere/files/a")));
    EXPECT_EQ(Trash::moveIn(home.path("elsewhere/files/a")).error(), EPERM);
    EXPECT_TRUE(Trash::moveBack(in, home.path("a"), now()).ok());
}

TEST_F(TrashTest, aTrashThatIsNoFolderIsNotUsed)
{
    struct Case {
        const char* name;
        std::function<void()> prepare;
    };
    const Case cases[] = {
        {"a file", [&] { (void)home.file(trash); }},
        {"a dangling link", [&] { (void)home.link(trash, home.path("nowhere")); }},
        {"files is a link", [&] { (void)home.link(files(), home.folder("bait")); }},
        {"info is a link", [&] { (void)home.link(info(), home.folder("bait")); }},
        {"info is a file", [&] { (void)home.file(info()); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        c.prepare();
        const std::string path = home.file("a");
        EXPECT_FALSE(Trash::moveIn(path).ok());
        EXPECT_TRUE(TempHome::exists(path));
        EXPECT_THAT(listNames(home.path("bait")), IsEmpty());
        ASSERT_EQ(std::rename(trash.c_str(), home.path(std::string("was ") + c.name).c_str()), 0);
    }
}

TEST_F(TrashTest, somebodyElsesTrashIsNotUsed)
{
    (void)home.folder(info());
    if (::chown(info().c_str(), 12345, 12345) != 0)
        GTEST_SKIP() << "only root can give a folder away";
    EXPECT_EQ(Trash::moveIn(home.file("a")).error(), EXDEV);
    EXPECT_TRUE(TempHome::exists(home.path("a")));
}

TEST_F(TrashTest, aHomeFolderReachedThroughALinkIsStillTheHomeFolder)
{
    TempHome::setVariable("HOME", home.link(home.outside("alias"), home.path()));
    TempHome::reloadPlaces();
    Safety::refresh();
    (void)home.file("a");
    const std::string path = home.outside("alias/a");
    const std::string in = trashed(path);
    EXPECT_EQ(in, home.outside("alias/.local/share/Trash/files/a"));
    EXPECT_EQ(Trash::moveIn(home.path(".local/share/Trash/files/a")).error(), EPERM);
    EXPECT_TRUE(Trash::moveBack(in, path, now()).ok());
    EXPECT_TRUE(TempHome::exists(home.path("a")));
}

TEST_F(TrashTest, refusesWhatMustNotMove)
{
    (void)home.file(".ssh/id");
    (void)home.file("data/real.txt");
    (void)home.link("to-keys", home.path(".ssh"));
    (void)home.link("to-outside", home.outside("system"));
    (void)home.link("to-trash", files());
    (void)home.file(home.outside("system/a"));
    const std::string in = trashed(home.file("a"));
    struct Case {
        const char* name;
        std::string path;
        int error;
    };
    const Case cases[] = {
        {"the home folder", home.path(), EPERM},
        {"the Trash", trash, EPERM},
        {"an item in it", in, EPERM},
        {"an item in it by another way", home.path("to-trash/a"), EPERM},
        {"its info file", infoFile(in), EPERM},
        {"what holds it", home.path(".local"), EPERM},
        {"an item in a volume's Trash", home.file("disk/.Trash-77/files/a"), EPERM},
        {"a protected file", home.path(".ssh/id"), EPERM},
        {"a protected file by another way", home.path("to-keys/id"), EPERM},
        {"what really lies outside", home.path("to-outside/a"), EPERM},
        {"by dots", home.path("data/../.ssh/id"), EPERM},
        {"missing", home.path("missing"), ENOENT},
        {"in a missing folder", home.path("missing/a"), ENOENT},
        {"below a file", home.path("data/real.txt/a"), ENOTDIR},
        {"a zero byte", home.path("data/real.txt") + std::string(1, '\0') + "x", EINVAL},
        {"a relative path", "data/real.txt", EPERM},
    };
    const auto before = sortedNames(info());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Trash::moveIn(c.path).error(), c.error);
    }
    EXPECT_EQ(sortedNames(info()), before);
    EXPECT_TRUE(TempHome::exists(home.path("data/real.txt")));
}

TEST_F(TrashTest, aHarmlessLinkOnTheWayIsNoObstacle)
{
    (void)home.file("disk/cache/a");
    (void)home.link("cache", home.path("disk/cache"));
    const std::string in = trashed(home.path("cache/a"));
    EXPECT_EQ(Trash::originalPath(in), home.path("cache/a"));
    EXPECT_TRUE(Trash::moveBack(in, home.path("cache/a"), now()).ok());
    EXPECT_TRUE(TempHome::exists(home.path("disk/cache/a")));
}

TEST_F(TrashTest, sizesOfFoldersAreSharedWithOtherPrograms)
{
    const std::string sizes = trash + "/directorysizes";
    (void)plant("theirs", infoText("/home/b", "2025-01-01T00:00:00"));
    (void)home.file(sizes, "70 1 theirs\n80 1 gone\nmalformed\n90 1 ..%2Finfo%2Ftheirs");
    ASSERT_TRUE(Trash::moveIn(home.file("plain"), 5).ok());
    ASSERT_TRUE(Trash::moveIn(home.folder("unmeasured")).ok());
    EXPECT_TRUE(TempHome::content(sizes).ends_with("theirs")) << "files and unknown sizes are not listed";

    const auto in = Trash::moveIn(home.folder("some folder"), 4096);
    ASSERT_TRUE(in.ok());
    const auto written = statusOf(infoFile(in.value())).value().modified.time_since_epoch();
    const auto second = std::chrono::floor<seconds>(written).count();
    EXPECT_EQ(TempHome::content(sizes), "70 1 theirs\n4096 " + std::to_string(second) + " some%20folder\n");
    ASSERT_TRUE(Trash::moveBack(in.value(), home.path("some folder"), now()).ok());
    EXPECT_EQ(TempHome::content(sizes), "70 1 theirs\n");
    EXPECT_THAT(sortedNames(trash), ElementsAre("directorysizes", "files", "info"));
}

} // namespace orlen

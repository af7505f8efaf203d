#include "scan/locations/LocationScanners.h"

#include "clean/Safety.h"
#include "platform/text/PathText.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Scanner = std::vector<Finding> (LocationScanners::*)() const;

constexpr std::int64_t kBlock = 4096;
constexpr Scanner kScanners[] = {&LocationScanners::cachesAndLogs, &LocationScanners::backups,
                                 &LocationScanners::developer,     &LocationScanners::packageCaches,
                                 &LocationScanners::trashAndMail,  &LocationScanners::languagePacks};

class LocationScannersTest : public testing::Test {
protected:
    LocationScannersTest() { Safety::refresh(); }

    /// Reads the places again after variables or files changed.
    static void reload()
    {
        TempHome::reloadPlaces();
        Safety::refresh();
    }

    [[nodiscard]] std::vector<FileEntry> scan(FindingKind kind) const
    {
        const LocationScanners scanners(progress, flag.token());
        for (const Scanner scanner : kScanners) {
            for (Finding& finding : (scanners.*scanner)()) {
                if (finding.kind == kind)
                    return std::move(finding.items);
            }
        }
        ADD_FAILURE() << "no scanner covers " << rawValue(kind);
        return {};
    }

    /// Paths relative to the folder around the home folder.
    [[nodiscard]] std::vector<std::string> names(FindingKind kind) const
    {
        std::vector<std::string> names;
        for (const FileEntry& entry : scan(kind))
            names.push_back(entry.path.substr(home.outside().size() + 1));
        return names;
    }

    TempHome home;
    mutable ScanProgress progress;
    ScanFlag flag;
};

TEST_F(LocationScannersTest, entriesBelowTheMinimumOfTheirPlaceAreLeftOut)
{
    struct Case {
        FindingKind kind;
        const char* folder; ///< in the folder around the home folder
        std::int64_t tooSmall;
        std::int64_t enough;
        const char* note;
    };
    constexpr Case cases[] = {
        {FindingKind::caches, "home/Library/Caches", 24 * kBlock, 25 * kBlock, ""},
        {FindingKind::caches, "Library/Caches", 122 * kBlock, 123 * kBlock, "Shared cache"},
        {FindingKind::caches, "home/.cache", 24 * kBlock, 25 * kBlock,
         "Orlen does not know this cache. Most can go; look inside first."},
        {FindingKind::logs, "home/Library/Logs", 2 * kBlock, 3 * kBlock, ""},
        {FindingKind::logs, "Library/Logs", 2 * kBlock, 3 * kBlock, "Shared log"},
        {FindingKind::iosBackups, "home/Library/Application Support/MobileSync/Backup", 0, kBlock, ""},
        {FindingKind::softwareUpdates, "home/Library/iTunes/iPhone Software Updates", 0, kBlock, ""},
        {FindingKind::softwareUpdates, "home/Library/iTunes/iPod Software Updates", 0, kBlock, ""},
        {FindingKind::softwareUpdates, "home/Library/Updates", 0, kBlock, ""},
        {FindingKind::xcodeDerived, "home/Library/Developer/Xcode/DerivedData", 0, kBlock, ""},
        {FindingKind::xcodeArchives, "home/Library/Developer/Xcode/Archives", 0, kBlock, ""},
        {FindingKind::simulators, "home/Library/Developer/CoreSimulator/Devices", 244 * kBlock, 245 * kBlock,
         "Simulator device"},
        {FindingKind::deviceSupport, "home/Library/Developer/Xcode/tvOS DeviceSupport", 0, kBlock, ""},
        {FindingKind::homebrew, "home/Library/Caches/Homebrew", 244 * kBlock, 245 * kBlock, ""},
        {FindingKind::homebrew, "home/.cache/Homebrew", 244 * kBlock, 245 * kBlock, ""},
        {FindingKind::trash, "home/.Trash", 0, kBlock, ""},
        {FindingKind::trash, "home/.local/share/Trash/files", 0, kBlock, ""},
        {FindingKind::mailDownloads, "home/Library/Containers/com.apple.mail/Data/Library/Mail Downloads", 0,
         kBlock, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.folder);
        const TempHome fresh;
        const std::string folder = home.outside(c.folder);
        home.fileOfSize(folder + "/small", c.tooSmall);
        home.fileOfSize(folder + "/enough/inside", c.enough);
        home.fileOfSize(folder + "/larger", c.enough + kBlock);
        home.fileOfSize(folder + "/.DS_Store", c.enough);
        home.fileOfSize(folder + "/.localized", c.enough);
        const std::vector<FileEntry> entries = scan(c.kind);
        ASSERT_EQ(entries.size(), 2U);
        EXPECT_EQ(entries[0].path, folder + "/larger");
        EXPECT_EQ(entries[1].path, folder + "/enough");
        EXPECT_EQ(entries[1].size, c.enough);
        EXPECT_TRUE(entries[1].modified.has_value());
        EXPECT_EQ(noteOf(entries[1]).base(), c.note);
    }
}

TEST_F(LocationScannersTest, singlePlacesCarryTheirNotesAndNeedContents)
{
    struct Case {
        FindingKind kind;
        const char* path;
        const char* note;
    };
    constexpr Case cases[] = {
        {FindingKind::simulators, "Library/Developer/CoreSimulator/Caches", "Simulator cache"},
        {FindingKind::npm, ".npm/_cacache", "npm cache"},
        {FindingKind::npm, ".npm/_logs", "npm logs"},
        {FindingKind::npm, "Library/Caches/Yarn", "Yarn cache"},
        {FindingKind::npm, ".cache/yarn", "Yarn cache"},
        {FindingKind::npm, ".cache/node/corepack", "Corepack cache"},
        {FindingKind::npm, ".local/share/pnpm/store",
         "pnpm store · Projects link to these files; 'pnpm store prune' frees unused ones."},
        {FindingKind::pip, "Library/Caches/pip", "pip cache"},
        {FindingKind::pip, ".cache/pip", "pip cache"},
        {FindingKind::pip, ".cache/pypoetry/artifacts", "Poetry cache"},
        {FindingKind::gradle, ".gradle/caches", "Gradle cache"},
        {FindingKind::gradle, ".gradle/wrapper/dists", "Gradle distributions"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path);
        const TempHome fresh;
        home.file(std::string(c.path) + "/empty", "");
        EXPECT_THAT(scan(c.kind), IsEmpty());
        home.fileOfSize(std::string(c.path) + "/file", kBlock);
        const std::vector<FileEntry> entries = scan(c.kind);
        ASSERT_EQ(entries.size(), 1U);
        EXPECT_EQ(entries[0].path, home.path(c.path));
        EXPECT_EQ(entries[0].size, kBlock);
        EXPECT_EQ(noteOf(entries[0]).base(), c.note);
    }
}

TEST_F(LocationScannersTest, onlyTheLargestEntriesUpToTheLimitAreListed)
{
    const std::string backups = "Library/Application Support/MobileSync/Backup/";
    const std::string trash = home.path(".Trash-" + std::to_string(Places::current().user) + "/files/");
    for (int i = 0; i < 700; ++i)
        home.fileOfSize(backups + std::to_string(i), i % 7 == 3 ? kBlock : 2 * kBlock);
    for (int i = 0; i < 301; ++i)
        home.fileOfSize((i % 2 == 0 ? ".local/share/Trash/files/" : trash) + std::to_string(i),
                        i == 7 ? kBlock : 2 * kBlock);
    for (const auto& [kind, count] :
         {std::pair(FindingKind::iosBackups, 600U), std::pair(FindingKind::trash, 300U)}) {
        const std::vector<FileEntry> entries = scan(kind);
        ASSERT_EQ(entries.size(), count);
        EXPECT_EQ(entries.back().size, 2 * kBlock);
    }
}

TEST_F(LocationScannersTest, cachesThatBelongElsewhereAreNotAmongTheCaches)
{
    const char* names[] = {".cache/rclone/x",
                           ".cache/plasma_theme_dark.kcache",
                           ".cache/keyring-A1/x",
                           ".cache/.fr-x1/x",
                           ".cache/pip/x",
                           ".cache/JetBrains/x",
                           ".cache/node/x",
                           ".cache/.Trash-1000/x",
                           ".cache/Google/AndroidStudio2024/x",
                           ".cache/orlen/x",
                           "Library/Caches/Homebrew/x",
                           "Library/Caches/pip/x",
                           "Library/Caches/Yarn/x"};
    for (const char* name : names)
        home.fileOfSize(name, 200 * kBlock);
    home.fileOfSize(".cache/Rclone/x", 200 * kBlock);
    home.fileOfSize("Library/Caches/yarn/x", 200 * kBlock);
    EXPECT_THAT(this->names(FindingKind::caches),
                UnorderedElementsAre("home/Library/Caches/yarn", "home/.cache/Rclone"));
    EXPECT_EQ(std::rename(home.path(".cache/Google/AndroidStudio2024").c_str(),
                          home.path(".cache/Google/Chrome").c_str()),
              0);
    EXPECT_THAT(this->names(FindingKind::caches), testing::Contains("home/.cache/Google"));
}

TEST_F(LocationScannersTest, placesOfOtherRowsTakeUpRoomAmongTheLargest)
{
    for (int i = 0; i < 601; ++i)
        home.fileOfSize("Library/Caches/" + std::to_string(1'000 + i), (i < 600 ? 26 : 25) * kBlock);
    EXPECT_EQ(names(FindingKind::caches).size(), 600U);
    home.fileOfSize("Library/Caches/Homebrew/x", 200 * kBlock);
    home.fileOfSize("Library/Caches/pip/x", 25 * kBlock); // not among the largest
    EXPECT_EQ(names(FindingKind::caches).size(), 599U);
}

TEST_F(LocationScannersTest, environmentsInUseAreNoCaches)
{
    for (const char* folder : {".cache/", "Library/Caches/"}) {
        home.fileOfSize(std::string(folder) + "env/lib/x", 30 * kBlock);
        home.file(std::string(folder) + "env/pyvenv.cfg");
        home.file(std::string(folder) + "env/CACHEDIR.TAG", "Signature: 8a477f597d28d172789f06886806bc55");
        home.fileOfSize(std::string(folder) + "conda/conda-meta/x", 30 * kBlock);
    }
    EXPECT_THAT(names(FindingKind::caches), IsEmpty());
}

TEST_F(LocationScannersTest, whatTheUserCannotMoveAwayIsNotOffered)
{
    home.fileOfSize(".cache/locked/file", 30 * kBlock);
    home.fileOfSize("Library/Caches/locked/file", 30 * kBlock);
    home.fileOfSize(home.outside("Library/Caches/locked/file"), 200 * kBlock);
    home.fileOfSize(".local/share/Trash/files/locked/file", kBlock);
    for (const char* folder : {"home/.cache/locked", "home/Library/Caches/locked", "Library/Caches/locked",
                               "home/.local/share/Trash/files/locked"})
        TempHome::setMode(home.outside(folder), 0555);
    EXPECT_THAT(names(FindingKind::caches), ElementsAre("home/Library/Caches/locked"));
    EXPECT_THAT(names(FindingKind::trash), ElementsAre("home/.local/share/Trash/files/locked"));
}

TEST_F(LocationScannersTest, desktopFoldersAreNeverReadThroughLinks)
{
    home.fileOfSize("elsewhere/a", 30 * kBlock);
    home.link(".cache/link", home.path("elsewhere"));
    home.link(".cache/pypoetry", home.path("elsewhere"));
    home.folder("elsewhere/cache");
    home.fileOfSize("elsewhere/cache/a", kBlock);
    home.link(".local/share/pnpm/store", home.path("elsewhere"));
    home.link(".local/share/Trash/files", home.path("elsewhere"));
    home.link(".local/state/app", home.path("elsewhere"));
    EXPECT_THAT(names(FindingKind::caches), IsEmpty());
    EXPECT_THAT(names(FindingKind::pip), IsEmpty());
    EXPECT_THAT(names(FindingKind::npm), IsEmpty());
    EXPECT_THAT(names(FindingKind::trash), IsEmpty());

    const TempHome fresh;
    home.fileOfSize("elsewhere/app/a", 30 * kBlock);
    home.fileOfSize("elsewhere/uv/a", 30 * kBlock);
    home.link(".cache", home.path("elsewhere"));
    EXPECT_THAT(names(FindingKind::caches), IsEmpty());
    EXPECT_THAT(names(FindingKind::pip), IsEmpty());
}

TEST_F(LocationScannersTest, oddNamesAreListedUnlessTheyAreNotUtf8)
{
    for (const char* folder : {".cache/", "Library/Caches/"}) {
        home.fileOfSize(std::string(folder) + "bad\xFF", 30 * kBlock);
        home.fileOfSize(std::string(folder) + "line\nbreak", 31 * kBlock);
        home.fileOfSize(std::string(folder) + "*", 30 * kBlock);
    }
    EXPECT_THAT(names(FindingKind::caches),
                UnorderedElementsAre("home/Library/Caches/line\nbreak", "home/Library/Caches/*",
                                     "home/.cache/line\nbreak", "home/.cache/*"));
}

TEST_F(LocationScannersTest, protectedPlacesAreNotListed)
{
    home.fileOfSize(".cache/sub/state/app/x.log", 30 * kBlock);
    home.fileOfSize("Library/Caches/repository/.git/x", 30 * kBlock);
    home.fileOfSize("Library/Caches/.git/x", 30 * kBlock);
    home.fileOfSize(".npm/_logs/x", kBlock);
    EXPECT_THAT(names(FindingKind::caches),
                UnorderedElementsAre("home/Library/Caches/repository", "home/.cache/sub"));
    // A folder that a variable names is protected itself, and so not an entry of the one around it.
    TempHome::setVariable("XDG_STATE_HOME", home.path(".cache/sub"));
    reload();
    EXPECT_THAT(names(FindingKind::caches), ElementsAre("home/Library/Caches/repository"));
}

TEST_F(LocationScannersTest, everySandboxHasACacheFolderOfItsOwn)
{
    home.fileOfSize(".var/app/org.x.App/cache/mozilla/a", 30 * kBlock);
    home.fileOfSize(".var/app/org.x.App/cache/tmp/a", 30 * kBlock);
    home.fileOfSize(".var/app/org.x.App/cache/yarn/a", 30 * kBlock);
    home.fileOfSize("snap/app/42/.cache/unknown/a", 30 * kBlock);
    home.fileOfSize("snap/app/41/.cache/older/a", 30 * kBlock);
    home.link("snap/app/current", "42");
    home.fileOfSize("snap/other/7/.cache/elsewhere/a", 30 * kBlock);
    home.link("snap/other/current", "/etc");
    const std::vector<FileEntry> entries = scan(FindingKind::caches);
    ASSERT_THAT(names(FindingKind::caches), UnorderedElementsAre("home/.var/app/org.x.App/cache/mozilla",
                                                                 "home/snap/app/42/.cache/unknown"));
    for (const FileEntry& entry : entries) {
        const bool isFlatpak = entry.path.ends_with("mozilla");
        EXPECT_EQ(entry.rating, isFlatpak ? std::nullopt : std::optional(Rating::review));
        EXPECT_EQ(noteOf(entry).base(),
                  isFlatpak ? "Flatpak app org.x.App · Browser cache, rebuilt as you browse."
                            : "Snap app app · Orlen does not know this cache. Most can go; look "
                              "inside first.");
    }
    EXPECT_THAT(names(FindingKind::npm), ElementsAre("home/.var/app/org.x.App/cache/yarn"));
}

TEST_F(LocationScannersTest, applicationsWithWebViewsGiveUpTheirCachesOnly)
{
    for (const char* name : {"Cache/a", "GPUCache/a", "IndexedDB/a", "User/a", "Service Worker/ScriptCache/a",
                             "Service Worker/Database/a", "Partitions/main/Code Cache/a"})
        home.fileOfSize(std::string(".config/Chat/") + name, 30 * kBlock);
    home.fileOfSize(".config/NoWebView/Cache/a", 30 * kBlock);
    home.file(".config/Chat/Partitions/main/Preferences");
    EXPECT_THAT(names(FindingKind::caches), ElementsAre("home/.config/Chat/Partitions/main/Code Cache"));
    home.file(".config/Chat/Local State");
    EXPECT_THAT(names(FindingKind::caches),
                UnorderedElementsAre("home/.config/Chat/Cache", "home/.config/Chat/GPUCache",
                                     "home/.config/Chat/Service Worker/ScriptCache",
                                     "home/.config/Chat/Partitions/main/Code Cache"));
    EXPECT_EQ(noteOf(scan(FindingKind::caches).front()).base(), "Chat cache — quit the app first");
}

TEST_F(LocationScannersTest, contentsTellWhatANameCannot)
{
    const std::string backup = "Documents/" + std::string(40, 'a');
    home.fileOfSize(backup + "/Manifest.db", 30 * kBlock);
    EXPECT_THAT(names(FindingKind::iosBackups), IsEmpty());
    home.file(backup + "/Manifest.plist");
    EXPECT_THAT(names(FindingKind::iosBackups), ElementsAre("home/" + backup));

    home.fileOfSize(".android/avd/Pixel.avd/userdata", 300 * kBlock);
    home.fileOfSize(".android/avd/Running.avd/userdata", 300 * kBlock);
    home.file(".android/avd/Running.avd/hardware-qemu.ini.lock");
    EXPECT_THAT(names(FindingKind::simulators), ElementsAre("home/.android/avd/Pixel.avd"));

    home.fileOfSize(".cache/pypoetry/virtualenvs/gone/a", 30 * kBlock);
    home.file(".cache/pypoetry/virtualenvs/gone/pyvenv.cfg");
    home.file(".cache/pypoetry/virtualenvs/gone/lib/python3.11/site-packages/x.pth", home.path("code/gone"));
    home.fileOfSize(".local/share/virtualenvs/live/a", 30 * kBlock);
    home.file(".local/share/virtualenvs/live/pyvenv.cfg");
    home.file(".local/share/virtualenvs/live/.project", home.path("code/live"));
    home.folder("code/live");
    EXPECT_THAT(names(FindingKind::caches), ElementsAre("home/.cache/pypoetry/virtualenvs/gone"));

    home.fileOfSize(".local/share/app/logs/a.log", 4 * kBlock);
    home.fileOfSize(".local/share/mixed/logs/a.log", 4 * kBlock);
    home.file(".local/share/mixed/logs/talk.txt");
    home.fileOfSize("core.1234", 4 * kBlock);
    home.file("core.99", "\x7F"
                         "ELF" +
                             std::string(16'384, 'x'));
    EXPECT_THAT(names(FindingKind::logs), UnorderedElementsAre("home/.local/share/app/logs", "home/core.99"));
}

TEST_F(LocationScannersTest, runningProgramsAreToQuitFirst)
{
    home.fileOfSize(".cache/mozilla/a", 30 * kBlock);
    const std::string process = home.outside("system/proc/4242");
    home.folder(process);
    home.link(process + "/exe", "/usr/lib/firefox/firefox");
    EXPECT_EQ(noteOf(scan(FindingKind::caches).front()).base(),
              "Browser cache, rebuilt as you browse. · Quit firefox first");
}

TEST_F(LocationScannersTest, onlyLogsOfDisplayServersAreOffered)
{
    const char* xorg[] = {"Xorg.0.log", "Xorg.0.log.old", "notes"};
    for (const char* name : xorg)
        home.fileOfSize(std::string(".local/share/xorg/") + name, 3 * kBlock);
    EXPECT_THAT(names(FindingKind::logs), UnorderedElementsAre("home/.local/share/xorg/Xorg.0.log",
                                                               "home/.local/share/xorg/Xorg.0.log.old"));
}

TEST_F(LocationScannersTest, onlyLogsOfProgramStatesAreOffered)
{
    const char* offered[] = {"nvim/lsp.log", "app/logs/a", "app/sub/log/a", "app/sub/x.log.1",
                             "logs/own.log"};
    const char* left[] = {"nvim/undo/a",  "app/sub/deeper/x.log", "top.log",
                          "app/logs.d/x", "weechat/x.log",        "app/folder.log/sub"};
    for (const char* name : offered)
        home.fileOfSize(std::string(".local/state/") + name, 3 * kBlock);
    for (const char* name : left)
        home.fileOfSize(std::string(".local/state/") + name, 3 * kBlock);
    EXPECT_THAT(names(FindingKind::logs),
                UnorderedElementsAre("home/.local/state/nvim/lsp.log", "home/.local/state/app/logs",
                                     "home/.local/state/app/sub/log", "home/.local/state/app/sub/x.log.1",
                                     "home/.local/state/logs/own.log"));
    for (const FileEntry& entry : scan(FindingKind::logs)) {
        const std::string_view below = std::string_view(entry.path).substr(home.path(".local/state/").size());
        EXPECT_EQ(noteOf(entry).base(), std::string(below.substr(0, below.find('/'))));
    }
}

TEST_F(LocationScannersTest, onlyArchivesOfPackagesAreOffered)
{
    for (const char* name : {"a.conda", "b.tar.bz2", "c", "d.conda.partial"})
        home.fileOfSize(std::string("miniconda3/pkgs/") + name, 250 * kBlock);
    EXPECT_THAT(names(FindingKind::pip),
                UnorderedElementsAre("home/miniconda3/pkgs/a.conda", "home/miniconda3/pkgs/b.tar.bz2"));
}

TEST_F(LocationScannersTest, trashTellsWhereItemsWere)
{
    struct Case {
        const char* name;
        std::string info; ///< the "Path" line's value; empty: no info file
        const char* note;
    };
    const Case cases[] = {
        {"a", home.path("Music/a%20b/a"), "home/Music/a b"},
        {"b", "", ""},
        {"c", home.path("%FF/c"), ""},
    };
    for (const Case& c : cases) {
        home.fileOfSize(std::string(".local/share/Trash/files/") + c.name, kBlock);
        if (!c.info.empty())
            home.file(std::string(".local/share/Trash/info/") + c.name + ".trashinfo",
                      "[Trash Info]\nPath=" + c.info + "\nDeletionDate=2025-03-01T09:30:00\n");
    }
    const std::vector<FileEntry> entries = scan(FindingKind::trash);
    ASSERT_EQ(entries.size(), std::size(cases));
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto entry = std::find_if(entries.begin(), entries.end(), [&](const FileEntry& e) {
            return PathText::lastComponent(e.path) == c.name;
        });
        ASSERT_NE(entry, entries.end());
        const std::string note = "Deleted from " + home.outside(c.note);
        EXPECT_EQ(noteOf(*entry).base(), *c.note == 0 ? std::string() : note);
    }
}

TEST_F(LocationScannersTest, unreadableFoldersAndAnUnusableHomeGiveNothing)
{
    home.fileOfSize(".cache/app/x", 30 * kBlock);
    home.fileOfSize("Library/Logs/x", 30 * kBlock);
    TempHome::setMode(home.path("Library/Logs"), 0);
    EXPECT_THAT(names(FindingKind::logs), IsEmpty());
    EXPECT_THAT(names(FindingKind::caches), ElementsAre("home/.cache/app"));
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    EXPECT_THAT(names(FindingKind::caches), IsEmpty());
}

TEST_F(LocationScannersTest, progressCountsChildrenAndShowsSinglePlaces)
{
    for (int i = 0; i < 48; ++i)
        home.fileOfSize(".cache/" + std::to_string(i), kBlock);
    home.fileOfSize(".gradle/caches/x", kBlock);
    const LocationScanners scanners(progress, flag.token());
    (void)scanners.cachesAndLogs();
    EXPECT_EQ(progress.files(), 48);
    EXPECT_TRUE(progress.current().starts_with(home.path(".cache/")));
    (void)scanners.packageCaches();
    EXPECT_EQ(progress.files(), 48);
    EXPECT_EQ(progress.current(), home.path(".gradle/caches"));
}

TEST_F(LocationScannersTest, cancelledScanEndsWithWhatItHas)
{
    for (int i = 0; i < 600; ++i)
        home.file(".local/share/Trash/files/" + std::to_string(i));
    const LocationScanners scanners(progress, flag.token());
    std::jthread user([&] {
        while (progress.files() < 300)
            std::this_thread::yield();
        flag.cancel();
    });
    EXPECT_LE(scanners.trashAndMail().front().items.size(), 300U);
    user.join();
    const std::int64_t counted = progress.files();
    EXPECT_THAT(scanners.trashAndMail().front().items, IsEmpty());
    EXPECT_EQ(progress.files(), counted);
}

} // namespace
} // namespace orlen

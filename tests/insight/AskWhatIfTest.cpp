#include "insight/AskWorld.h"
#include "scan/HomeWalk.h"

namespace orlen {
namespace {

/// Questions about what would be if things were removed, and about things told by where they lie.
class AskWhatIfTest : public AskWorld {
protected:
    void SetUp() override
    {
        AskWorld::SetUp();
        context.findings.clear();
        file("Downloads/mint.iso", 14);
        file("Downloads/ubuntu.iso", 6);
        file("Videos/Lake house.mkv", 11);
        file("Projects/engine/target/out", 8);
        home.file("Projects/engine/Cargo.toml", "x");
        file("Projects/site/node_modules/lib.js", 2);
        home.file("Projects/site/package.json", "x");
        file("Projects/site/target/notes.txt", 1);
        file("Projects/site/.venv/lib/python.so", 4);
        home.file("Projects/site/.venv/pyvenv.cfg", "x");
        file("VirtualBox VMs/Testing/box.vdi", 3);
        file(".local/share/gnome-boxes/images/fedora", 5);
        file(".wine/drive_c/windows.dll", 2);
        file("Desktop/Screenshot 1.png", 1);
        file("Pictures/review.png", 1);
        add(FindingKind::screenshots, Rating::review, message("Screen captures."),
            {entry("Pictures/review.png", kBytesInMB)});
        FileEntry copy = entry("Downloads/sea (1).jpg", 3 * kBytesInMB);
        copy.notes = {message("Identical to sea.jpg")};
        add(FindingKind::duplicates, Rating::review, message("A copy stays."),
            {copy, entry("Music/a (1).flac", 40 * kBytesInMB)});
        add(FindingKind::oldDownloads, Rating::safe, message("Lying around."),
            {entry("Downloads/mint.iso", 14 * kBytesInMB)});
        file(".config/gimp/cache/c.bin", 2);
        add(FindingKind::caches, Rating::review, message("Made again."),
            {entry(".config/gimp/cache/c.bin", 2 * kBytesInMB)});
        file("Applications/Krita.AppImage", 8);
        file("Downloads/linuxmint-22.img", 5);
        add(FindingKind::largeFiles, Rating::review, message("Large."),
            {entry("Downloads/linuxmint-22.img", 5 * kBytesInMB)});
        add(FindingKind::npm, Rating::safe, message("Fetched again."),
            {entry(".npm/_cacache", 3 * kBytesInMB)});
        add(FindingKind::gradle, Rating::safe, message("Fetched again."),
            {entry(".gradle/wrapper/dists", 5 * kBytesInMB), entry(".gradle/caches", 2 * kBytesInMB)});
        add(FindingKind::trash, Rating::review, message("In the Trash."),
            {entry(".local/share/Trash/files/old.mov", 6 * kBytesInMB)});
        file("Pictures/Crete.RW2", 2);
        file("Android/app/build/app.apk", 7);
        file(".cache/mozilla/tiles", 2);
        file(".cache/spotify/songs", 3);
        file(".mozilla/firefox/places.sqlite", 9);
        file(".local/share/Steam/steamapps/common/Portal 2/portal.bin", 6);
        context.protection = [this](std::string_view path) {
            if (path == home.path(".config/gimp/cache"))
                return Protection::browserProfiles;
            return path.starts_with(home.path(".mozilla/firefox")) ? Protection::browserProfiles
                                                                   : Protection::none;
        };
        home.file("Android/build.gradle", "x");
        context.home = HomeWalk::walk({});
    }

    void file(const std::string& name, std::int64_t megabytes) const
    {
        constexpr std::int64_t kBlock = 4'096;
        home.fileOfSize(name, megabytes * kBytesInMB / kBlock * kBlock);
    }
};

constexpr Row kWhatIf[] = {
    {"how much would I gain by deleting the caches of Firefox and Spotify",
     "~/.cache/mozilla and ~/.cache/spotify|5 MB more (2 items)", "firefox"},
    {"Wie viel gewinne ich, wenn ich die Caches von Firefox und Spotify lösche", "5 MB more (2 items)"},
    {"quanto guadagno se cancello le cache di Firefox e Spotify", "5 MB more (2 items)"},
    {"the firefox and spotify caches", "Together they take 5 MB|mozilla|spotify", ".mozilla"},
    {"how much would I free if I delete firefox", "~/.mozilla/firefox is protected", "more ("},
    {"how do i uninstall portal 2", "common/Portal 2 takes 6 MB|in the program that installed them"},
    {"delete the steam screenshots", "", "games of Steam"},
    {"is % safe", "I don't know"},
    {"can i delete s", "I don't know"},
    {"can i delete a", "I don't know"},
    {"files bigger than 3 MB but smaller than 6 MB", "over 3 MB under 6 MB"},
    {"the mint and ubuntu isos", "Together they take 20 MB", "img"},
    {"the node_modules of site", "site/node_modules takes 2 MB"},
    {"Wie groß ist der target-Ordner von engine", "engine/target takes 8 MB"},
    {"how big is the dist folder of engine", "nothing called “dist” in ~/Projects/engine"},
    {"what is in my engine folder", "Of files in ~/Projects/engine there are 2|target/out"},
    {"is there a second copy of ubuntu.iso", "lists no duplicate of “ubuntu.iso”"},
    {"backup files bigger than 1 MB", "no files with “backup” in their names over 1 MB"},
    {"blender cache", "no cache of “blender”"},
    {"everything in Downloads but the isos", "Left out: .iso"},
    {"documents word", "no text documents"},
    {"how many target folders", "with “target” in their names there are 2", "node_modules"},
    {"how much would I free if I delete both isos", "20 MB more (2 items)|mint.iso|120 GB is free now",
     "mkv"},
    {"how much free space would I have after removing ubuntu.iso and the lake house video",
     "17 MB more (2 items)|ubuntu.iso|Lake house.mkv", "mint"},
    {"how much free space would i have without mint.iso", "14 MB more (1 item)", "ubuntu"},
    {"what would happen to my free space if i removed ubuntu.iso", "6 MB more (1 item)", "mint"},
    {"how much space without videos and isos", "31 MB more (3 items)"},
    {"how much space would I have after removing the linux mint image", "5 MB more (1 item)"},
    {"if I deleted everything rated Safe how much free space would I have afterwards",
     "everything rated Safe|24 MB more (4 items)|mint.iso", "ubuntu"},
    {"how much do i gain if i remove all build artifacts and venvs",
     "21 MB more (4 items)|engine/target|app/build|node_modules|.venv", "site/target"},
    {"how much would I free if I delete unicorns and mint.iso", "nothing called “unicorns”", "14 MB"},
    {"what would i get back from deleting the gradle stuff and the trash together",
     "13 MB more (3 items)|wrapper/dists|old.mov"},
    {"how much do node_modules, build and .venv take together", "Together they take 13 MB|app/build"},
    {"smallest of my virtual machines", "there are 2, 8 MB in all. The smallest:"},
    {"would emptying the trash get me 100 MB", "No. Emptying the Trash would free 6 MB"},
    {"would clearing the npm and gradle caches free 10 MB", "Yes.|10 MB more (3 items)"},
    {"how much would I free if I empty the trash", "Emptying the Trash would free 6 MB (1 item)", "Without"},
    {"what if i emptied the trash", "Emptying the Trash would free 6 MB (1 item)", "tick"},
    {"how much would I free by deleting the gimp cache", "2 MB more (1 item)|gimp/cache/c.bin", "protected"},
    {"is the gimp cache safe to delete", "In it the last scan lists 1 item, 2 MB|gimp/cache/c.bin"},
    {"is the downloads cache safe", "no cache of “downloads”", "mint"},
    {"how much do I gain by clearing the npm, yarn and gradle caches",
     "Without the npm and Yarn caches and Gradle caches|10 MB more (3 items", "13 MB"},
    {"how much do i get if i include review",
     "everything rated Safe and everything rated Review|mint.iso|linuxmint-22.img", "notes.txt"},
    {"how much space would I get back by deleting ISOs over 10 MB", "14 MB more (1 item)|mint", "ubuntu"},
};

constexpr Row kByPlace[] = {
    {"is there a virtual machine on this computer", "virtual machines there are 2, 8 MB|fedora|Testing"},
    {"how big are my wine prefixes", "2 MB|~/.wine"},
    {"raw files size", "RAW photos there is 1, 2 MB", "sea"},
    {"total size of build artefacts and target dirs", "builds have made there are 3, 17 MB in all"},
    {"what is the total size of videos and isos",
     "Of videos there is 1|files ending in .iso there are 2|there are 3, 31 MB"},
    {"how big are my screenshots and duplicates together",
     "screenshots there are 2, 2 MB|there are 4, 45 MB"},
    {"how many raw videos", "I don't know that"},
    {"how many installers do I have", "installers there are 2"},
};

constexpr Row kRecognised[] = {
    {"how many screenshots do i have", "screenshots there are 2, 2 MB"},
    {"show me my screenshots",
     "screenshots there are 2, 2 MB|~/Desktop/Screenshot 1.png|~/Pictures/review.png"},
    {"how much do my screenshots take", "screenshots there are 2, 2 MB"},
    {"do I have duplicate photos",
     "found no similar photos|copies of photos the last scan lists 1|sea (1).jpg", "flac"},
    {"which files are duplicates", "sea (1).jpg|Identical to sea.jpg|a (1).flac"},
    {"is it ok to remove sea.jpg or is it the only copy", "Identical to sea.jpg"},
    {"did I download sea.jpg twice", "sea (1).jpg|Identical to sea.jpg"},
};

TEST_F(AskWhatIfTest, sumsOfWhatWouldGo)
{
    expectAnswers(kWhatIf);
}

TEST_F(AskWhatIfTest, whatIsToldByItsPlace)
{
    expectAnswers(kByPlace);
}

TEST_F(AskWhatIfTest, countsAndListsAreOfTheSameFiles)
{
    expectAnswers(kRecognised);
}

} // namespace
} // namespace orlen

#include "insight/AskWorld.h"
#include "scan/HomeWalk.h"

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Questions about files and folders, most of which no finding lists.
class AskHomeTest : public AskWorld {
protected:
    void SetUp() override
    {
        AskWorld::SetUp();
        context.findings.clear();
        file("backup-2025.img", 12 * kBytesInMB, "2026-05-02");
        file(".backup.img", 13 * kBytesInMB, "2026-05-03");
        file("Videos/Lake house.mkv", 11 * kBytesInMB, "2025-07-04");
        file("Music/Evening set.flac", 10 * kBytesInMB, "2024-02-03");
        file("Music/Matinee.flac", 9 * kBytesInMB, "2026-05-06");
        file("Downloads/Floor plan (1).pdf", kBytesInMB, "2026-05-31");
        file("Downloads/garden plan.pdf", kBytesInMB / 2, "2026-03-01");
        file("Downloads/setup.deb", kBytesInMB / 4, "2026-02-01");
        file("Documents/Floor plan.pdf", kBytesInMB, "2026-04-04");
        file("Projects/engine/target/disk.img", 8 * kBytesInMB, "2026-05-04");
        file("Projects/site/node_modules/lib.js", 2 * kBytesInMB, "2026-05-04");
        file("Tools/saw.txt", kBytesInMB, "2026-05-04");
        file(".cache/pip-tools/x", kBytesInMB, "2026-05-31");
        file(".cache/mail/picture.jpg", kBytesInMB, "2026-05-31");
        file("Pictures/Coast/shot one.jpg", kBytesInMB, "2026-04-01");
        file("Pictures/Coast/shot two.jpg", kBytesInMB / 2, "2026-04-02");
        file(".var/app/org.example.App/.cache/3", 0, "2026-04-02");
        file("VirtualBox VMs/Testing/box.vdi", 3 * kBytesInMB, "2026-04-02");
        add(FindingKind::caches, Rating::review, message("Made again."),
            {entry("Projects/engine/target", 8 * kBytesInMB), entry(".cache/pip-tools", kBytesInMB)});
        add(FindingKind::oldFiles, Rating::review, message("Not opened for long."),
            {entry("Music/Evening set.flac", 10 * kBytesInMB)});
        file(".config/blender/settings", kBytesInMB / 8, "2026-02-01");
        file(".cache/thunderbird/x", kBytesInMB / 8, "2026-02-01");
        add(FindingKind::caches, Rating::safe, message("Made again."),
            {entry(".cache/thunderbird", kBytesInMB / 8)});
        home.folder(".thunderbird");
        context.protection = [this](std::string_view path) {
            return path == home.path(".thunderbird") ? Protection::mail : Protection::none;
        };
        context.breakdown.folders.clear();
        context.home = HomeWalk::walk({});
    }

    void file(const std::string& name, std::int64_t bytes, const std::string& date) const
    {
        constexpr std::int64_t kBlock = 4'096;
        const std::string path = home.fileOfSize(name, bytes / kBlock * kBlock);
        TempHome::setTimes(path, on(date), on(date));
    }
};

constexpr Row kOfPrograms[] = {
    // Never the whole folder of the program for its cache, and never the cache for all of it.
    {"is the discord cache safe to clear", "~/.config/discord/Cache takes 2 MB|It is a cache", "3.1 MB"},
    {"visual studio code cache", "~/.config/Code/CachedData takes 999 KB"},
    {"kann der Discord-Cache weg", "~/.config/discord/Cache"},
    {"how big is discord", "The folder ~/.config/discord takes 3.1 MB"},
    {"how big is spotify",
     "“spotify” has 2 folders|3 MB in all|~/.cache/spotify|~/.var/app/com.spotify.Client"},
    {"how big is the blender cache", "no cache of “blender”", ".config"},
    {"is the firefox cache safe", "~/.cache/mozilla (1 GB) was moved to the Trash", ".mozilla is"},
    {"is firefox taking a lot of space", "~/.cache/mozilla (1 GB) was moved to the Trash", ".mozilla is"},
    {"caches of my browser", "~/.cache/mozilla (1 GB) was moved to the Trash", "discord"},
    {"did the last clean up remove anything from firefox", "~/.cache/mozilla — 1 GB"},
    {"did the last clean up remove anything from discord", "I don't know that"},
    {"is minecraft safe to delete", "~/.minecraft takes"},
    {"my minecraft world", "~/.minecraft/saves takes"},
    {"how big are discords caches", "~/.config/discord/Cache"},
    {"discord logs", "no log files of “discord”"},
    {"can I get rid of vs code", "~/.config/Code takes"},
    {"how big is mincraft", "~/.minecraft takes"},
};

constexpr Row kByWords[] = {
    {"can i delete the zoom installer", "zoom_amd64.deb", ".zoom"},
    {"the backup from my old laptop", "old laptop backup.tar.gz takes", "The oldest"},
    {"is the garden plan pdf safe to delete", "garden plan.pdf", "Floor"},
    {"can I delete the box vm", "box.vdi"},
    {"lake house", "Lake house.mkv"},
    {"how big is the fedora vm", "images/fedora40 takes 2 MB"},
    {"how big is fedora40", "gnome-boxes/images/fedora40 takes 2 MB"},
    {"how much would I free if I remove box.vdi and the zoom installer",
     "you would have 4 MB more|box.vdi|zoom_"},
};

constexpr Row kBack[] = {
    {"can I get back the firefox cache", "~/.cache/mozilla (1 GB) was moved|orlen restore|1 June 2026"},
    {"how do I restore old-film.mp4", "old-film.mp4 (5 MB) is in the Trash (Deleted from ~/Videos)", "rated"},
    {"I want my old film back", "old-film.mp4 (5 MB) is in the Trash"},
    {"undelete saw.txt", "neither in the Trash|~/Tools/saw.txt (999 KB) is still there"},
    {"if I delete saw.txt can I get it back", "saw.txt", "neither"},
    {"restore nothing.odt please", "“nothing.odt” is neither in the Trash nor in the history"},
    {"where did my old-film.mp4 go and can i get it back", "old-film.mp4 (5 MB) is in the Trash", "clean-up"},
};

constexpr Row kThings[] = {
    {"what is core.4711", "memory dump|takes 999 KB"},
    {"what is box.vdi", "disk of a virtual machine"},
    {"what is Projects/engine/target", "listed under", "build output"},
    {"what is node_modules", "packages of a JavaScript project"},
    {"what is baloo", "baloo: database of a program"},
    {"what does the engine folder contain", "disk.img"},
    {"folders called target", "folders with “target” in their names"},
    {"can I delete node_modules", "its package manager installs them again"},
    {"what is setup.deb", "package that installs a program"},
    {"what is in Projects/engine", "target"},
    {"is Projects/engine safe to delete", "1 item, 8 MB; none of it is rated Safe|rated Review. Made again."},
    {"how big is /var", "/var counts for System, which takes 21 GB|protected"},
    {"what does “ Review ” mean", "Review: probably no longer needed"},
};

constexpr Row kFiles[] = {
    {"10 biggest files",
     "Of files there are 21|~/.backup.img (13 MB)|backup-2025.img|Lake house.mkv|and 11 more"},
    {"what is the biggest file", "~/.backup.img (13 MB), changed 3 May 2026", "backup-2025|more"},
    {"the three largest files", "~/.backup.img|~/backup-2025.img|Lake house.mkv|and 18 more", "Evening"},
    {"files over 9.5 MB", "Of files over 9.5 MB there are 4|Evening set.flac", "Matinee"},
    {"show me the biggest videos", "Of videos there is 1, 11 MB in all.|Lake house.mkv", "img"},
    {"show me all .img files", "Of files ending in .img there are 3|disk.img (8 MB)|App caches, Review"},
    {"how many flac files", "Of files ending in .flac there are 2, 19 MB in all."},
    {"how many mp3 do I have", "I found no files ending in .mp3."},
    {"size of all js files", "Of files ending in .js there is 1, 2 MB"},
    {"wie viele JS-Dateien habe ich", "ending in .js"},
    {"how many blend files", "I found no files ending in .blend."},
    {"the two smallest coast", "in ~/Pictures/Coast there are 2|shot two.jpg"},
    {"biggest log files", "log files", "ending"},
    {"the smallest audiobooks", "I don't know that."},
    {"largest coast photos", "Of photos in ~/Pictures/Coast there are 2", "Lake"},
    {"old garden documents", "with “garden” in their names|garden plan.pdf", "Floor"},
    {"how many PDFs are in Downloads", "Of PDFs in ~/Downloads there are 2"},
    {"how many photos do I have", "Of photos there are 2, 1.5 MB in all.", "category"},
    {"newest files", "Floor plan (1).pdf", "pip-tools|.cache"},
    {"biggest files changed in april 2026", "there are 5"},
    {"files changed in april 2026", "there are 5|Floor plan.pdf", "setup"},
    {"files between 8 and 10 MB", "there are 2|Evening set.flac|Matinee.flac"},
    {"biggest file in Projects/engine", "in ~/Projects/engine|target/disk.img", "lib.js"},
    {"files I haven't opened for a year", "Evening set.flac (10 MB), opened 3 February 2024", "Matinee"},
    {"biggest files except videos", "Left out: videos.|.backup.img", "Lake house"},
    {"biggest file in Downloads over 50 MB", "I found no files over 50 MB in ~/Downloads."},
    {"die 3 größten Dateien", "~/.backup.img|~/backup-2025.img|Lake house.mkv", "Evening"},
    {"wie viele PDFs habe ich", "Of PDFs there are 3"},
    {"größte datei in Projects/engine", "target/disk.img"},
    {"fichiers de plus de 10,5 mo", "there are 3|Lake house.mkv"},
    {"le plus gros fichier", "~/.backup.img", "backup-2025"},
    {"archivo más antiguo de la carpeta Downloads", "setup.deb", "garden"},
    {"cuántos archivos mp3 tengo", "I found no files ending in .mp3."},
    {"il file più recente nella cartella Downloads", "Floor plan (1).pdf", "garden"},
    // A folder that is left out is no kind of file, and nobody takes what is left for all there is.
    {"pdfs over 0.9 mb not in Documents", "Left out: ~/Documents|there is 1|Downloads/Floor plan (1).pdf"},
    {"audio files over 5 mb not in Music", "in ~/Music there are 2|Left out: ~/Music", "found no"},
    {"how many audio files aren't in Music", "in ~/Music there are 2|Left out: ~/Music"},
    {"Audiodateien nicht im Musikordner", "in ~/Music there are 2|Left out: ~/Music"},
};

constexpr Row kFolders[] = {
    {"how many subfolders does Projects have", "Of folders in ~/Projects there are 2"},
    {"how many files and folders does Music have", "I don't know that", "Of files"},
    {"how many files does Music have", "Of files in ~/Music there are 2"},
    {"how many folders does Pictures have", "Of folders in ~/Pictures there is 1"},
    {"largest thing modified since April 2026", ".backup.img (13 MB)", "The newest"},
    {"biggest folders", "Of folders there are|~/Music — 19 MB", "target"},
    {"three largest folders in Projects", "Of folders in ~/Projects there are 2|~/Projects/engine — 8 MB",
     "target"},
    {"biggest hidden folders", "~/.cache — 2.1 MB", "Music"},
    {"zeig mir die 3 größten Dateien in Downloads", "Floor plan (1).pdf|garden plan.pdf|setup.deb",
     "~/.cache"},
    {"how big is my .cache folder", "~/.cache takes 2.1 MB", "category"},
    {"whats the size of the Tools folder", "~/Tools takes 999 KB", "pip-tools"},
    {"how big is my music folder", "~/Music takes 19 MB"},
    {"how big is my home folder", "~ takes"},
    {"size of VirtualBox VMs", "~/VirtualBox VMs takes 3 MB"},
    {"how big is Projects", "~/Projects takes 10 MB|In it the last scan lists 1 item, 8 MB",
     "doesn't suggest"},
    {"wie groß ist der Musikordner", "~/Music takes 19 MB"},
    {"quanto è grande la cartella Tools", "~/Tools takes 999 KB"},
    {"how many .git directories do i have", "no folders with “.git” in their names", "protected"},
    {"files outside my home", "I don't know that"},
    {"how many node_modules folders are there",
     "folders with “node_modules” in their names there is 1, 2 MB"},
};

constexpr Row kNames[] = {
    {"can I delete Lake house.mkv", "~/Videos/Lake house.mkv takes 11 MB|changed on 4 July 2025|Look at it",
     "fit"},
    {"where is Floor plan.pdf", "~/Documents/Floor plan.pdf takes", "Downloads|garden"},
    {"where is the file garden plan.pdf?", "~/Downloads/garden plan.pdf takes", "Floor"},
    {"is Floor plan (1).pdf important", "~/Downloads/Floor plan (1).pdf takes 999 KB", "Documents"},
    {"what is .backup.img", "~/.backup.img takes 13 MB"},
    {"what is lake house", "~/Videos/Lake house.mkv takes 11 MB"},
    {"can I delete disk.img",
     "disk.img takes 8 MB|part of ~/Projects/engine/target, listed under “App caches”"},
    {"delete node_modules?", "~/Projects/site/node_modules takes 2 MB"},
    {"how big is pip-tools in .cache", "~/.cache|listed under “App caches”"},
    {"can I delete Evening set.flac", "Evening set.flac (10 MB) in ~/Music, listed under", "fit"},
    {"what is blender", "The application Blender takes 3 GB", ".config"},
    {"can I delete the keys in .thunderbird", "~/.thunderbird is protected", "nothing called"},
    {"are there two copies of the floor plan",
     "2 files have nearly the same name|Floor plan (1).pdf|no duplicate of “floor plan”|from 1 MB up"},
    {"is saw.txt a duplicate", "no duplicate of “saw.txt”", "nearly"},
    {"can I delete thunderbird", "~/.thunderbird is protected|thunderbird (125 KB) in ~/.cache"},
    {"where is saw.txt in Music", "I find nothing called “saw.txt” in ~/Music."},
    {"can i delete vacation2019.zip", "I find nothing called “vacation2019.zip” in your home folder."},
    {"how big is projects/ENGINE", "~/Projects/engine takes 8 MB"},
    {"was ist backup-2025.img", "~/backup-2025.img takes 12 MB"},
    {"kann ich den Ordner Projects/site löschen", "~/Projects/site takes 2 MB|Look at it"},
    {"c'est quoi Matinee.flac", "~/Music/Matinee.flac takes 9 MB"},
    {"puedo borrar garden plan.pdf", "~/Downloads/garden plan.pdf takes"},
    {"posso eliminare Lake house.mkv", "~/Videos/Lake house.mkv takes 11 MB"},
    // A kind beside a name narrows it.
    {"can I delete both engine pdfs", "no PDFs in ~/Projects/engine"},
    {"if i delete both engine pdfs how much do i get back", "no PDFs in ~/Projects/engine", "8 MB"},
    {"can i get rid of both engine and site in Projects", "Together they take 10 MB|engine|site"},
    {"can I delete Evening set.flac or is it the only copy", "rated Review|no duplicate of"},
    {"can I delete box.vdi", "box.vdi: disk of a virtual machine. |Look at it before you remove it"},
};

TEST_F(AskHomeTest, listsAndCountsOfAllFiles)
{
    expectAnswers(kFiles);
}

TEST_F(AskHomeTest, sizesAndListsOfFolders)
{
    expectAnswers(kFolders);
}

TEST_F(AskHomeTest, programsWithTheirFolders)
{
    file(".config/discord/Cache/data", 2 * kBytesInMB, "2026-02-01");
    file(".config/discord/settings", kBytesInMB + 100'000, "2026-02-01");
    file(".config/Code/CachedData/x", kBytesInMB, "2026-02-01");
    file(".cache/spotify/x", kBytesInMB, "2026-02-01");
    file(".var/app/com.spotify.Client/data/x", 2 * kBytesInMB, "2026-02-01");
    file(".minecraft/saves/one/level", kBytesInMB, "2026-02-01");
    file(".minecraft/versions/x", kBytesInMB, "2026-02-01");
    file("core.4711", kBytesInMB, "2026-02-01");
    context.apps->pop_back();
    context.history.front().items.push_back({home.path(".cache/mozilla"), "/t/mozilla", kBytesInGB});
    context.history.front().date = on("2026-06-01");
    FileEntry film = entry(".local/share/Trash/files/old-film.mp4", 5 * kBytesInMB);
    film.notes = {message("Deleted from ~/Videos")};
    add(FindingKind::trash, Rating::review, message("Already in the Trash."), {film});
    context.protection = [](std::string_view path) {
        return path == "/var" ? Protection::outside : Protection::none;
    };
    context.home = HomeWalk::walk({});
    expectAnswers(kOfPrograms);
    expectAnswers(kBack);
    file("Downloads/zoom_amd64.deb", kBytesInMB, "2026-02-01");
    file(".zoom/logs/zoom.log", kBytesInMB, "2026-02-01");
    file("Documents/old laptop backup.tar.gz", kBytesInMB, "2026-02-01");
    file(".local/share/gnome-boxes/images/fedora40", 2 * kBytesInMB, "2026-02-01");
    context.home = HomeWalk::walk({});
    expectAnswers(kByWords);
    expectAnswers(kThings);
}

TEST_F(AskHomeTest, anythingByItsName)
{
    expectAnswers(kNames);
}

TEST_F(AskHomeTest, linesLinkToTheirFindings)
{
    const Answer answer = AskEngine::answer("the two biggest flac files", context);
    EXPECT_THAT(answer.paths,
                ElementsAre(home.path("Music/Evening set.flac"), home.path("Music/Matinee.flac")));
    EXPECT_THAT(answer.findingIDs, ElementsAre(context.findings[1].id()));
    EXPECT_THAT(AskEngine::answer("biggest videos", context).findingIDs, IsEmpty());
}

TEST_F(AskHomeTest, saysThatFilesAreLeftOut)
{
    context.home = HomeWalk::walk({}, {.files = 3});
    expectAnswer({"", "there are 3|more files than Orlen keeps in mind"},
                 AskEngine::answer("biggest files", context));
}

TEST_F(AskHomeTest, aWalkIsNeededForFilesOnly)
{
    for (const char* question : {"10 biggest files", "can I delete Lake house.mkv", "how big is Tools"})
        EXPECT_TRUE(AskEngine::needsHome(question, context)) << question;
    for (const char* question : {"how much free space do I have", "what is using the most space?"})
        EXPECT_FALSE(AskEngine::needsHome(question, context)) << question;
}

} // namespace
} // namespace orlen

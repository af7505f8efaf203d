#include "insight/AskWorld.h"

namespace orlen {
namespace {

/// Files that no finding lists.
class AskHomeTest : public AskWorld {
protected:
    void SetUp() override
    {
        AskWorld::SetUp();
        for (const char* name :
             {"Documents/Summer of 69.mp3", "Documents/plan (1).pdf", "Projects/site/notes.txt",
              "Projects/site/node_modules/a/index.js", "Projects/photo.jpg", ".hidden.zip",
              ".cache/thumb.jpg", "Music/a.mp3", "Music/b.flac"})
            home.file(name, std::string(20'000, 'x'));
        home.file("Projects/disk.img", std::string(900'000, 'x'));
        context.home = std::make_shared<HomeLook>();
    }
};

constexpr Row kOfHome[] = {
    {"biggest file", "~/Projects/disk.img"},
    {"3 biggest files in Projects", "disk.img|photo.jpg|Of files in ~/Projects there are 4", "slack|wedding"},
    {"how many photos do i have", "Of photos there is 1", "thumb"},
    {"mp3 files", "Of files ending in .mp3 there are 2", "flac"},
    {"any zip files in Music", "I found no files ending in .zip in ~/Music"},
    {"show me all .img files", "disk.img", "flac"},
    {"biggest folders in Projects", "~/Projects/site", "disk.img"},
    {"hidden folders by size", "~/.cache", "Projects"},
    {"what is node_modules", "~/Projects/site/node_modules takes"},
    {"can i delete Summer of 69.mp3", "~/Documents/Summer of 69.mp3 takes|no rating"},
    {"where is plan (1).pdf", "~/Documents/plan (1).pdf takes"},
    {"how big is the folder Projects", "The folder ~/Projects takes"},
    {"notes.txt in Projects", "~/Projects/site/notes.txt"},
    {"notes.txt in Documents", "not in the results"},
    {"what is in .cache", "~/.cache takes|In it the last scan lists 2 items"},
    {"largest file thats not a photo in Projects", "Left out: photos.|disk.img", "photo.jpg"},
};

} // namespace

TEST_F(AskHomeTest, whatTheScanDoesNotListIsLookedUp)
{
    expectAnswers(kOfHome);
}

} // namespace orlen

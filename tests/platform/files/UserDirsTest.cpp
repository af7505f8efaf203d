#include "platform/files/UserDirs.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

std::string folderOf(std::string_view line)
{
    const auto folders = UserDirs::parse(line, "/home/u");
    return folders.empty() ? std::string() : folders.begin()->second;
}

TEST(UserDirsTest, entriesBelowTheHomeFolderAreTaken)
{
    const struct {
        const char* name;
        const char* line;
        const char* folder;
    } cases[] = {
        {"relative to the home folder", R"(XDG_DOWNLOAD_DIR="$HOME/Downloads")", "/home/u/Downloads"},
        {"absolute", R"(XDG_MUSIC_DIR="/home/u/Musik/")", "/home/u/Musik"},
        {"spaces around and a carriage return", "  XDG_MUSIC_DIR = \"$HOME/M\"\r", "/home/u/M"},
        {"escaped letters", R"(XDG_MUSIC_DIR="$HOME/My \"best\" \$ongs")", "/home/u/My \"best\" $ongs"},
        {"dots inside", R"(XDG_MUSIC_DIR="$HOME/a/../b")", "/home/u/b"},
        {"switched off", R"(XDG_MUSIC_DIR="$HOME")", ""},
        {"switched off with a slash", R"(XDG_MUSIC_DIR="$HOME/")", ""},
        {"elsewhere", R"(XDG_MUSIC_DIR="/mnt/music")", ""},
        {"climbing out", R"(XDG_MUSIC_DIR="$HOME/../v")", ""},
        {"a sibling of the home folder", R"(XDG_MUSIC_DIR="$HOMEwork")", ""},
        {"a null device", R"(XDG_MUSIC_DIR="/dev/null")", ""},
        {"a comment", R"(#XDG_MUSIC_DIR="$HOME/M")", ""},
        {"no quotes", "XDG_MUSIC_DIR=$HOME/M", ""},
        {"an open quote", R"(XDG_MUSIC_DIR="$HOME/M)", ""},
        {"an empty key", R"(XDG__DIR="$HOME/M")", ""},
        {"no key", R"(XDG_DIR="$HOME/M")", ""},
        {"a relative path", R"(XDG_MUSIC_DIR="M")", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(folderOf(c.line), c.folder);
    }
    EXPECT_EQ(folderOf(std::string("XDG_MUSIC_DIR=\"$HOME/\0M\"", 24)), "") << "a zero byte";
}

TEST(UserDirsTest, laterLineForAKeyReplacesTheEarlier)
{
    const auto folders = UserDirs::parse("XDG_MUSIC_DIR=\"$HOME/A\"\nXDG_VIDEOS_DIR=\"$HOME/V\"\n"
                                         "XDG_MUSIC_DIR=\"$HOME/B\"\nXDG_VIDEOS_DIR=\"$HOME/\"",
                                         "/home/u");
    EXPECT_EQ(folders, (std::map<std::string, std::string>{{"MUSIC", "/home/u/B"}}));
}

} // namespace
} // namespace orlen

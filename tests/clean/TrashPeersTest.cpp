#include "clean/Cleaner.h"

#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"
#include "support/Command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// Other programs of the desktop must see what this one trashed, and the other way round.
class TrashPeersTest : public testing::Test {
protected:
    /// Trashes a file, a folder and two files of one name, all with names that need encoding.
    void trashSome() const
    {
        std::vector<FileEntry> entries;
        for (const std::string& path : paths)
            entries.push_back({home.file(path, path), 4096, {}, {}, {}, {}});
        entries.push_back({home.folder("a folder"), 4096, {}, {}, {}, {}});
        const CleanRecord record = Cleaner::run(entries, "Peers", [](int, int, const std::string&) {}).record;
        ASSERT_EQ(record.failed, 0);
    }

    /// A record of one item that another program has trashed from `path`.
    [[nodiscard]] CleanRecord recordOf(const std::string& path) const
    {
        CleanRecord record;
        record.date = std::chrono::system_clock::now();
        record.items.push_back(
            {path, filesFolder + "/" + std::string(PathText::lastComponent(path)), 1, false});
        return record;
    }

    /// `gio` knows the Trash only with the desktop's daemons, here on a bus of their own.
    [[nodiscard]] CommandOutcome gio(std::vector<std::string> arguments) const
    {
        std::vector<std::string> words{
            "env", "GVFS_DISABLE_FUSE=1", "XDG_RUNTIME_DIR=" + home.folder("run"), "dbus-run-session", "--",
            "gio"};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return runCommand(words);
    }

    TempHome home;
    std::vector<std::string> paths{home.path("50% of it.txt"), home.path("b+c/5#6.txt"),
                                   home.path("\xC3\xBC/5#6.txt")};
    std::string filesFolder = home.path(".local/share/Trash/files");
    std::string infoFolder = home.path(".local/share/Trash/info");
};

} // namespace

TEST_F(TrashPeersTest, trashCliListsOurItems)
{
    if (!hasCommand("trash-list"))
        GTEST_SKIP() << "trash-list is not installed";
    trashSome();
    const std::string list = runCommand({"trash-list"}).output;
    for (const std::string& path : paths)
        EXPECT_THAT(list, HasSubstr(" " + path + "\n"));
    EXPECT_THAT(list, HasSubstr(" " + home.path("a folder") + "\n"));
    EXPECT_THAT(list, Not(HasSubstr("?")));
}

TEST_F(TrashPeersTest, trashCliRestoresOurItems)
{
    if (!hasCommand("trash-restore"))
        GTEST_SKIP() << "trash-restore is not installed";
    trashSome();
    for (const std::string& path : paths) {
        (void)runCommand({"trash-restore", path}, "0\n");
        EXPECT_EQ(TempHome::content(path), path);
    }
    EXPECT_THAT(sortedNames(infoFolder), ElementsAre("a folder.trashinfo"));
}

TEST_F(TrashPeersTest, weRestoreWhatTrashCliTrashed)
{
    if (!hasCommand("trash-put"))
        GTEST_SKIP() << "trash-put is not installed";
    const std::string path = home.file("their %20 file", "theirs");
    ASSERT_EQ(runCommand({"trash-put", path}).status, 0);
    const auto back = Cleaner::restore(recordOf(path));
    EXPECT_EQ(back.restored, 1);
    EXPECT_EQ(TempHome::content(path), "theirs");
    EXPECT_THAT(listNames(infoFolder), IsEmpty());
}

TEST_F(TrashPeersTest, gioListsAndRestoresOurItems)
{
    if (!hasCommand("gio") || !hasCommand("dbus-run-session"))
        GTEST_SKIP() << "gio or dbus-run-session is not installed";
    if (gio({"trash", "--list"}).status != 0)
        GTEST_SKIP() << "gio has no trash:/// here (gvfs is missing)";
    trashSome();
    const std::string list = gio({"trash", "--list"}).output;
    // gio shows the bytes of a path that are not ASCII as numbers.
    for (const char* name : {"50% of it.txt", "b+c/5#6.txt", "\\xc3\\xbc/5#6.txt", "a folder"})
        EXPECT_THAT(list, HasSubstr("\t" + home.path(name) + "\n"));
    EXPECT_EQ(gio({"trash", "--restore", "trash:///50%25%20of%20it.txt"}).status, 0);
    EXPECT_EQ(TempHome::content(paths.front()), paths.front());
    EXPECT_FALSE(TempHome::exists(infoFolder + "/50% of it.txt.trashinfo"));
}

TEST_F(TrashPeersTest, weRestoreWhatGioTrashed)
{
    if (!hasCommand("gio"))
        GTEST_SKIP() << "gio is not installed";
    const std::string path = home.file("\xC3\xA4 #1.tar.gz", "theirs");
    if (runCommand({"gio", "trash", path}).status != 0)
        GTEST_SKIP() << "gio does not trash here";
    EXPECT_EQ(Trash::originalPath(filesFolder + "/\xC3\xA4 #1.tar.gz"), path);
    const auto back = Cleaner::restore(recordOf(path));
    EXPECT_EQ(back.restored, 1);
    EXPECT_EQ(TempHome::content(path), "theirs");
    EXPECT_THAT(listNames(infoFolder), IsEmpty());
}

} // namespace orlen

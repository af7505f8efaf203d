#include "clean/Exclusions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto kPath = Exclusion::Kind::path;
constexpr auto kName = Exclusion::Kind::name;

std::vector<std::string> paths(const Finding& finding)
{
    std::vector<std::string> all;
    for (const FileEntry& entry : finding.items)
        all.push_back(entry.path);
    return all;
}

} // namespace

TEST(ExclusionsTest, aLineCoversWhatIsBelowAndWhatHoldsIt)
{
    const Exclusions exclusions({{kPath, "/home/src/a/b"}, {kName, "src"}, {kPath, "/home/src/a b"}},
                                "/home/src");
    const struct {
        const char* name;
        const char* path;
        const char* line; ///< null: not excluded
    } cases[] = {
        {"the path itself", "/home/src/a/b", "/home/src/a/b"},
        {"below it", "/home/src/a/b/c/d", "/home/src/a/b"},
        {"a folder that holds it", "/home/src/a", "/home/src/a/b"},
        {"the same start only", "/home/src/a/bc", nullptr},
        {"a folder whose name another continues", "/home/src/a/b b", nullptr},
        {"with a space, which sorts before a slash", "/home/src/a b/x", "/home/src/a b"},
        {"beside it", "/home/src/c", nullptr},
        {"an entry of the name", "/home/src/x/src", "src"},
        {"below an entry of the name", "/home/src/x/src/y", "src"},
        {"only part of the name", "/home/src/x/src2", nullptr},
        {"the home folder has that name", "/home/src/x", nullptr},
        {"outside the home folder every component counts", "/opt/src/x", "src"},
        {"case matters", "/home/src/A/b", nullptr},
        {"the root holds everything", "/", "/home/src/a b"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Exclusion* line = exclusions.excludes(c.path);
        EXPECT_EQ(line == nullptr ? "" : line->text, c.line == nullptr ? "" : c.line);
    }
    EXPECT_EQ(Exclusions({{kPath, "/"}}, "/home").excludes("/home/x")->text, "/");
    EXPECT_EQ(Exclusions().excludes("/home/x"), nullptr);
}

TEST(ExclusionsTest, takesEntriesAndTheFoldersAroundThem)
{
    const FileEntry folder{"/h/old", 5, {}, {}, {}, {}};
    const FileEntry film{"/h/old/keep.mkv", 4, {}, {}, {}, {}};
    const FileEntry other{"/h/other.mkv", 3, {}, {}, {}, {}};
    std::vector<Finding> findings{Finding(FindingKind::oldDownloads, {folder}),
                                  Finding(FindingKind::largeFiles, {film, other})};
    const std::vector<Finding> taken = Exclusions({{kName, "keep.mkv"}}, "/h").takeFrom(findings);
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_THAT(paths(findings[0]), ElementsAre("/h/other.mkv"));
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(paths(taken[0]), ElementsAre("/h/old")) << "moving it would move the film";
    EXPECT_THAT(paths(taken[1]), ElementsAre("/h/old/keep.mkv"));
    EXPECT_EQ(taken[1].kind, FindingKind::largeFiles);
    EXPECT_THAT(Exclusions().takeFrom(findings), IsEmpty());
}

TEST(ExclusionsTest, onlyWhatAnEntryCanHaveIsALine)
{
    EXPECT_EQ(Exclusion::ofPath("//a/./b/../c/")->text, "/a/c");
    for (const std::string& path :
         {std::string(), std::string("a"), std::string("~/a"), std::string("/a\xff"), std::string("/a\0b", 4),
          '/' + std::string(4095, 'a')})
        EXPECT_FALSE(Exclusion::ofPath(path)) << path.substr(0, 20);
    EXPECT_EQ(Exclusion::ofName("...")->text, "...");
    for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
                                    std::string("\xff"), std::string("a\0b", 3), std::string(256, 'a')})
        EXPECT_FALSE(Exclusion::ofName(name)) << name.substr(0, 20);
}

} // namespace orlen

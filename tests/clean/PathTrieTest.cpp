#include "clean/PathTrie.h"

#include "platform/text/PathText.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

using Mark = PathTrie::Mark;

/// "m" when the path is marked, "c" when its contents are, "mc" for both, "-" for neither.
std::string answer(const PathTrie& trie, std::string_view path)
{
    PathTrie::Cursor cursor(trie);
    for (const std::string_view component : PathText::components(path))
        cursor.enter(component);
    std::string text = cursor.isMarked() ? "m" : "";
    text += cursor.areContentsMarked() ? "c" : "";
    return text.empty() ? "-" : text;
}

TEST(PathTrieTest, marksReachAsFarAsTheySay)
{
    PathTrie trie;
    trie.add("/a", "/one", Mark::itself);
    trie.add("/a", "/all", Mark::contents);
    trie.add("/a", "/shut", Mark::closed);
    trie.add("/a", "/shut/in/open", Mark::opened);
    const struct {
        const char* path;
        const char* answer;
    } cases[] = {{"/", "-"},
                 {"/a", "-"},
                 {"/a/one", "m"},
                 {"/a/one/x", "-"},
                 {"/a/all", "mc"},
                 {"/a/all/x/y", "mc"},
                 {"/a/allx", "-"},
                 {"/a/shut", "m"},
                 {"/a/shut/x", "mc"},
                 {"/a/shut/in", "m"},
                 {"/a/shut/in/x", "mc"},
                 {"/a/shut/in/open", "-"},
                 {"/a/shut/in/open/x", "-"}};
    for (const auto& c : cases)
        EXPECT_EQ(answer(trie, c.path), c.answer) << c.path;
}

TEST(PathTrieTest, openedDoesNotLiftContents)
{
    PathTrie trie;
    trie.add("/a", "/b", Mark::closed);
    trie.add("/a", "/b/open", Mark::opened);
    trie.add("/a", {}, Mark::contents);
    EXPECT_EQ(answer(trie, "/a/b/open/x"), "mc");
}

TEST(PathTrieTest, starAndNameMeetInWhateverOrderTheyCame)
{
    PathTrie starFirst;
    starFirst.add("/apps", "/*/cache", Mark::itself);
    starFirst.add("/apps", "/fox/data", Mark::contents);
    PathTrie nameFirst;
    nameFirst.add("/apps", "/fox/data", Mark::contents);
    nameFirst.add("/apps", "/*/cache", Mark::itself);
    for (const PathTrie* trie : {&starFirst, &nameFirst}) {
        EXPECT_EQ(answer(*trie, "/apps/fox/cache"), "m");
        EXPECT_EQ(answer(*trie, "/apps/fox/data/x"), "mc");
        EXPECT_EQ(answer(*trie, "/apps/other/cache"), "m");
        EXPECT_EQ(answer(*trie, "/apps/other/data"), "-");
        EXPECT_EQ(answer(*trie, "/apps/fox"), "-");
    }
}

TEST(PathTrieTest, folderIsTakenLiterally)
{
    PathTrie trie;
    trie.add("/a*", "/x", Mark::contents);
    trie.add("/*", {}, Mark::itself);
    EXPECT_EQ(answer(trie, "/a*/x"), "mc");
    EXPECT_EQ(answer(trie, "/ab/x"), "-");
    EXPECT_EQ(answer(trie, "/b"), "-");
}

TEST(PathTrieTest, textBeforeAStarSealsEveryNameThatBeginsSo)
{
    PathTrie trie;
    trie.add("/a", "/chrome*", Mark::contents);
    trie.add("/a/chrome-x/free", {}, Mark::itself);
    for (const char* path : {"/a/chrome", "/a/chrome-beta/Default", "/a/chrome-x/free/y"})
        EXPECT_EQ(answer(trie, path), "mc") << path;
    EXPECT_EQ(answer(trie, "/a/chrom"), "-");
    EXPECT_EQ(answer(trie, "/a/b/chrome"), "-");
}

} // namespace
} // namespace orlen

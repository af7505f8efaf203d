#include "clean/PathTrie.h"

#include "platform/text/PathText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

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

TEST(PathTrieTest, textBeforeAStarStandsForEveryNameThatStartsSo)
{
    PathTrie trie;
    trie.add("/a", "/chrome*", Mark::contents);
    trie.add("/a/chrome-x/free", {}, Mark::itself);
    for (const char* path : {"/a/chrome", "/a/chrome-beta/Default", "/a/chrome-x/free/y"})
        EXPECT_EQ(answer(trie, path), "mc") << path;
    EXPECT_EQ(answer(trie, "/a/chrom"), "-");
    EXPECT_EQ(answer(trie, "/a/b/chrome"), "-");
}

TEST(PathTrieTest, rulesForNamesStartsAndAnyNameMeetInWhateverOrderTheyCame)
{
    struct Rule {
        const char* pattern;
        Mark mark;
    };
    std::vector<Rule> rules{{"/chrome*", Mark::closed},
                            {"/chrome*/User */GPU", Mark::opened},
                            {"/chrome-beta/Keys", Mark::contents},
                            {"/*/Trash", Mark::itself},
                            {"/ch*/Lock", Mark::contents}};
    const auto byPattern = [](const Rule& a, const Rule& b) {
        return std::string_view(a.pattern) < std::string_view(b.pattern);
    };
    std::ranges::sort(rules, byPattern);
    do {
        PathTrie trie;
        for (const Rule& rule : rules)
            trie.add("/a", rule.pattern, rule.mark);
        const std::pair<const char*, const char*> cases[] = {
            {"/a/chrome/User 1", "m"},     {"/a/chrome/User 1/GPU/x", "-"},
            {"/a/chrome/User 1/x", "mc"},  {"/a/chrome-beta/User 2/GPU", "-"},
            {"/a/chrome-beta/Keys", "mc"}, {"/a/chrome-beta/Lock", "mc"},
            {"/a/chest/Lock/x", "mc"},     {"/a/chest/Trash", "m"},
            {"/a/other/Trash", "m"},       {"/a/other/Lock", "-"}};
        for (const auto& [path, expected] : cases)
            ASSERT_EQ(answer(trie, path), expected) << path << ", first rule " << rules.front().pattern;
    } while (std::next_permutation(rules.begin(), rules.end(), byPattern));
}

TEST(PathTrieTest, theLabelIsThatOfTheMarkThatDecides)
{
    PathTrie trie;
    trie.add("/", {}, Mark::closed, 1);
    trie.add("/a", {}, Mark::opened, 2);
    trie.add("/a", {}, Mark::itself, 3);
    trie.add("/a", {}, Mark::itself, 4);
    trie.add("/a", "/b*", Mark::closed, 5);
    trie.add("/a", "/b/c", Mark::contents, 6);
    const std::pair<const char*, int> cases[] = {{"/x/y", 1},    {"/a", 3},       {"/a/x", 0},
                                                 {"/a/bx/y", 5}, {"/a/b/c/d", 6}, {"/a/b", 5}};
    for (const auto& [path, expected] : cases) {
        PathTrie::Cursor cursor(trie);
        for (const std::string_view component : PathText::components(path))
            cursor.enter(component);
        EXPECT_EQ(int{cursor.label()}, expected) << path;
    }
}

} // namespace
} // namespace orlen

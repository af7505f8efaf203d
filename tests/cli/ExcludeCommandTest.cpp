#include "app/Sizes.h"
#include "clean/Persist.h"
#include "cli/Process.h"
#include "platform/files/FolderLock.h"
#include "support/TempHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

} // namespace

TEST(ExcludeCommandTest, linesAreAddedListedAndRemoved)
{
    const TempHome home;
    const std::string folder = home.folder("real/Folder");
    (void)home.link("link", home.path("real"));
    EXPECT_EQ(orlen({"exclude", "--json"}).document(), Json::array());
    EXPECT_EQ(orlen({"exclude", "add", home.path("link/Folder/")}).status, 0);
    EXPECT_EQ(orlen({"exclude", "add", "--name", "node_modules", "--json"}).document(),
              Json::parse(R"([{"path":")" + folder + R"("},{"name":"node_modules"}])"))
        << "links among the folders are resolved";
    EXPECT_EQ(orlen({"exclude", "add", folder}).status, 0) << "no harm in saying it twice";
    const auto list = orlen({"exclude"});
    EXPECT_THAT(list.out, HasSubstr("~/real/Folder"));
    EXPECT_THAT(list.out, HasSubstr("node_modules"));
    const auto missing = orlen({"exclude", "add", home.path("later")});
    EXPECT_EQ(missing.status, 0);
    EXPECT_THAT(missing.err, HasSubstr("not there now"));

    EXPECT_EQ(orlen({"exclude", "remove", home.path("later")}).status, 0);
    EXPECT_EQ(orlen({"exclude", "remove", "--name", "node_modules"}).status, 0);
    EXPECT_EQ(orlen({"exclude", "remove", folder, "--json"}).document(), Json::array());
}

TEST(ExcludeCommandTest, aWrongCallChangesNothing)
{
    const TempHome home;
    const struct {
        const char* name;
        std::vector<std::string> arguments;
    } cases[] = {
        {"nothing named", {"add"}},
        {"both", {"add", "x", "--name", "y"}},
        {"no name", {"add", "--name", "a/b"}},
        {"not UTF-8", {"add", "a\xff"}},
        {"not in the list", {"remove", "x"}},
        {"another word", {"clear"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> arguments{"exclude"};
        arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
        const auto outcome = orlen(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.err, HasSubstr("orlen: "));
    }
    ASSERT_TRUE(Persist::makeDir().ok());
    const auto lock = FolderLock::take(Persist::dir());
    EXPECT_THAT(orlen({"exclude", "add", "x"}).err, HasSubstr("another Orlen"));
    EXPECT_EQ(orlen({"exclude", "add", "x"}).status, 2);
    EXPECT_EQ(orlen({"exclude"}).status, 0) << "reading is always possible";
    EXPECT_FALSE(TempHome::exists(Persist::dir() + "/exclusions.json"));
}

TEST(ExcludeCommandTest, whatIsExcludedIsExplainedAndNeitherFoundNorMoved)
{
    const TempHome home;
    const std::string cache = home.path(".cache/mozilla");
    (void)home.fileOfSize(".cache/mozilla/firefox/x", 1'200 * kKiB);
    (void)home.fileOfSize("a/film", 2'000 * kKiB);
    const std::string copy = home.fileOfSize("a/film of the summer", 2'000 * kKiB);
    EXPECT_EQ(orlen({"duplicates", "--json"}).document()["sets"].size(), 1U);
    EXPECT_EQ(orlen({"exclude", "add", home.path(".cache/mozilla/firefox")}).status, 0);
    EXPECT_EQ(orlen({"exclude", "add", "--name", "film of the summer"}).status, 0);

    const Json told = orlen({"explain", "--json", cache}).document();
    EXPECT_EQ(told["excluded"], true);
    EXPECT_EQ(told["exclusion"]["path"], home.path(".cache/mozilla/firefox"));
    EXPECT_EQ(told["protected"], false);
    EXPECT_EQ(told["findings"][0]["path"], cache);
    EXPECT_THAT(orlen({"explain", copy}).out, HasSubstr("Excluded by the name \"film of the summer\""));
    const Json free = orlen({"explain", "--json", home.path("a/film")}).document();
    EXPECT_EQ(free["excluded"], false);
    EXPECT_FALSE(free.contains("exclusion"));

    EXPECT_EQ(orlen({"scan", "--json"}).document()["findings"], Json::array());
    EXPECT_EQ(orlen({"duplicates", "--json"}).document()["sets"], Json::array());
    const auto chosen = orlen({"clean", "--yes", "--path", cache});
    EXPECT_EQ(chosen.status, 2);
    EXPECT_THAT(chosen.err, HasSubstr("is excluded"));
    EXPECT_TRUE(TempHome::exists(cache));
    EXPECT_EQ(orlen({"exclude", "remove", home.path(".cache/mozilla/firefox")}).status, 0);
    EXPECT_THAT(orlen({"clean", "--yes", "--path", cache}).err, Not(HasSubstr("excluded")));
    EXPECT_FALSE(TempHome::exists(cache));
}

} // namespace orlen

#include "app/Sizes.h"
#include "cli/Process.h"
#include "support/TempHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;

Json explained(const std::string& path)
{
    return Process{{"explain", "--json", path}}.run().document();
}

std::string shown(const std::string& path)
{
    return Process{{"explain", path}}.run().out;
}

} // namespace

TEST(ExplainCommandTest, aPathIsProtectedOfferedOrNeither)
{
    const TempHome home;
    home.fileOfSize(".cache/mozilla/firefox/cache2/x", 200 * kKiB);
    home.fileOfSize(".cache/inkscape/autosave.svg", 200 * kKiB);
    home.fileOfSize(".ssh/id_ed25519", 4 * kKiB);
    home.fileOfSize("notes.txt", 4 * kKiB);

    const Json cache = explained(home.path(".cache/mozilla/firefox"));
    EXPECT_EQ(cache["exists"], true);
    EXPECT_EQ(cache["protected"], false);
    EXPECT_FALSE(cache.contains("rule"));
    EXPECT_EQ(cache["size"], 200 * kKiB);
    ASSERT_EQ(cache["findings"].size(), 1U);
    const Json& offer = cache["findings"][0];
    EXPECT_EQ(offer["kind"], "caches");
    EXPECT_EQ(offer["rating"], "safe");
    EXPECT_EQ(offer["path"], home.path(".cache/mozilla"));
    EXPECT_EQ(offer["note"], "Browser cache, rebuilt as you browse.");

    const Json key = explained(home.path(".ssh/id_ed25519"));
    EXPECT_EQ(key["protected"], true);
    EXPECT_FALSE(key["rule"].get<std::string>().empty());
    EXPECT_TRUE(key["findings"].empty());

    for (const char* path : {".cache/inkscape", "notes.txt", "missing"}) {
        const Json other = explained(home.path(path));
        EXPECT_EQ(other["protected"], false) << path;
        EXPECT_TRUE(other["findings"].empty()) << path;
    }
    EXPECT_EQ(explained(home.path("missing"))["exists"], false);
}

TEST(ExplainCommandTest, textSaysWhatWouldMove)
{
    const TempHome home;
    home.fileOfSize(".cache/mozilla/firefox/x", 200 * kKiB);
    EXPECT_THAT(
        shown(home.path(".cache/mozilla/firefox")),
        HasSubstr("App caches, Safe: Browser cache, rebuilt as you browse.\nMoves with ~/.cache/mozilla"));
    EXPECT_THAT(shown(home.path(".ssh")), HasSubstr("Protected, "));
    EXPECT_EQ((Process{{"explain"}}.run().status), 2);
}

} // namespace orlen

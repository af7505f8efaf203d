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
using testing::IsEmpty;
using testing::Not;

Process::Outcome map(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "map");
    return Process{std::move(arguments)}.run();
}

struct OddHome : TempHome {
    OddHome()
    {
        fileOfSize("outer/inner/\xff", 72 * kKiB);
        fileOfSize("out\x1b[31mer", 24 * kKiB);
        fileOfSize("\xff/x", 4 * kKiB);
    }
};

} // namespace

TEST(MapCommandTest, theDocumentHoldsTheNodesInOrder)
{
    const OddHome home;
    Json document = map({"--json"}).document();
    EXPECT_TRUE(document["seconds"].is_number());
    document.erase("seconds");
    const auto node = [](const std::string& name, const std::string& path, std::int64_t size, bool isDir,
                         bool isOther) {
        return Json{{"name", name}, {"path", path}, {"size", size}, {"isDir", isDir}, {"isOther", isOther}};
    };
    const Json nodes = Json::array({
        node("outer", home.path("outer"), 72 * kKiB, true, false),
        node("out\x1b[31mer", home.path("out\x1b[31mer"), 24 * kKiB, false, false),
        node("1 smaller items", home.path(), 4 * kKiB, false, true),
    });
    EXPECT_EQ(document.dump(), (Json{{"path", home.path()}, {"nodes", nodes}}).dump());

    const Json inner = map({"--json", home.path("outer/../outer/")}).document();
    EXPECT_EQ(inner["path"], home.path("outer"));
    EXPECT_EQ(inner["nodes"][0]["path"], home.path("outer/inner"));
}

TEST(MapCommandTest, theTableIsReadable)
{
    const OddHome home;
    const Process::Outcome outcome = map({});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("█  outer/\n"));
    EXPECT_THAT(outcome.out, HasSubstr("out?[31mer\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\xef\xbf\xbd/\n")) << "a name that is no text";
    EXPECT_THAT(outcome.out, Not(HasSubstr("\x1b")));
}

TEST(MapCommandTest, whatIsNoReadableFolderIsAWrongCall)
{
    const OddHome home;
    const std::vector<std::string> calls[] = {{home.path("missing")},
                                              {home.path("out\x1b[31mer")},

                                              {""},
                                              {"--json", home.path("\xff")}};
    for (const std::vector<std::string>& call : calls) {
        SCOPED_TRACE(call.back());
        const Process::Outcome outcome = map(call);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.out, IsEmpty());
        EXPECT_THAT(outcome.err, Not(IsEmpty()));
    }
    EXPECT_EQ(map({home.path("\xff")}).status, 0);
}

} // namespace orlen

#include "clean/ExclusionJson.h"

#include "clean/Persist.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace orlen {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

const Exclusion kFolder{Exclusion::Kind::path, "/home/a \"b\""};
const Exclusion kModules{Exclusion::Kind::name, "node_modules"};

} // namespace

TEST(ExclusionJsonTest, brokenLinesAreLeftOutOneByOne)
{
    const struct {
        const char* name;
        const char* text;
        bool isWhole;
    } cases[] = {
        {"as written", "[\n{\"path\":\"/home/a \\\"b\\\"\"},\n{\"name\":\"node_modules\"}\n]", true},
        {"laid out by hand", "[ {\n\"path\" : \"/home/./a \\\"b\\\"/\" } , {\"name\"\n: \"node_modules\"} ]",
         true},
        {"written twice", R"([{"path":"/home/a \"b\""},{"name":"node_modules"},{"name":"node_modules"}])",
         true},
        {"others between",
         R"([1,{"path":"/home/a \"b\""},{"path":"~/x"},{"name":"a/b"},{"nam":"x"},
            {"path":"/x","name":"x"},{"path":["/x"]},{"name":"node_modules"},[[{"name":"x"}]]])",
         false},
        {"no end", "[\n{\"path\":\"/home/a \\\"b\\\"\"},\n{\"name\":\"node_modules\"},\n{\"na", false},
        {"a comma lost", "[\n{\"path\":\"/home/a \\\"b\\\"\"}\n{\"name\":\"node_modules\"}\n]", false},
        {"one line garbled",
         "[\n{\"path\":\"/home/a \\\"b\\\"\"},\n{\"path:\"/x\"},\n{\"name\":\"node_modules\"}\n]", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto decoded = ExclusionJson::decode(c.text);
        EXPECT_THAT(decoded.records, ElementsAre(kFolder, kModules));
        EXPECT_EQ(decoded.isWhole, c.isWhole);
    }
    for (const char* text : {"", "{}", "null", "\xff", "{\"path\":\"/x\""})
        EXPECT_FALSE(ExclusionJson::decode(text).isWhole) << text;
}

TEST(ExclusionJsonTest, theFileIsOneLineForEachAndForTheUserAlone)
{
    const TempHome home;
    EXPECT_TRUE(Persist::saveExclusions({kFolder, kModules}).ok());
    const std::string file = home.path(".local/share/Orlen/exclusions.json");
    EXPECT_EQ(TempHome::content(file),
              "[\n{\"path\":\"/home/a \\\"b\\\"\"},\n{\"name\":\"node_modules\"}\n]");
    EXPECT_EQ(statusOf(file).value().mode & 0777U, 0600U);
    EXPECT_THAT(Persist::loadExclusions().records, ElementsAre(kFolder, kModules));
    EXPECT_TRUE(Persist::saveExclusions({}).ok());
    EXPECT_EQ(Persist::loadExclusions().problem, Persist::Problem::none);
}

TEST(ExclusionJsonTest, nothingThePersonWroteIsOverwritten)
{
    const TempHome home;
    const std::string folder = home.path(".local/share/Orlen");
    const std::string file =
        home.file(".local/share/Orlen/exclusions.json", "[\n{\"name\":\"a\"},\n# mine\n]");
    const auto loaded = Persist::loadExclusions();
    EXPECT_EQ(loaded.problem, Persist::Problem::damaged);
    EXPECT_THAT(loaded.records, ElementsAre(Exclusion{Exclusion::Kind::name, "a"}));
    EXPECT_TRUE(Persist::saveExclusions({kModules}).ok());
    EXPECT_THAT(listNames(folder), Contains(StartsWith("exclusions.unreadable-")));

    TempHome::setMode(file, 0);
    EXPECT_EQ(Persist::loadExclusions().error, EACCES);
    EXPECT_EQ(Persist::saveExclusions({}).error(), EACCES);
    TempHome::setMode(file, 0600);
    EXPECT_THAT(Persist::loadExclusions().records, ElementsAre(kModules));

    const std::vector<Exclusion> tooMany(ExclusionJson::kMost + 1, kModules);
    EXPECT_EQ(Persist::saveExclusions(tooMany).error(), EFBIG);
}

} // namespace orlen

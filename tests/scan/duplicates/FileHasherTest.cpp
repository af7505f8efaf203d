#include "scan/duplicates/FileHasher.h"

#include "scan/duplicates/ContentComparer.h"
#include "support/TempHome.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace orlen {
namespace {

constexpr std::int64_t kLength = 3'000'320; // some blocks and a part of one

Suspect suspectOf(const Cand& cand)
{
    Suspect suspect;
    suspect.cand = &cand;
    suspect.seen = statusOf(cand.path).value();
    return suspect;
}

TEST(FileHasherTest, aFileThatChangesAfterItWasSeenIsLeftOut)
{
    struct Case {
        const char* name;
        std::function<void(const TempHome&, const std::string&)> change;
    };
    const Case cases[] = {
        {"shrinks",
         [](const TempHome&, const std::string& path) { std::filesystem::resize_file(path, kLength - 1); }},
        {"grows",
         [](const TempHome&, const std::string& path) { std::filesystem::resize_file(path, kLength + 1); }},
        {"is written to", [](const TempHome&, const std::string& path) { TempHome::setTimes(path, {}, {}); }},
        {"is replaced",
         [](const TempHome& home, const std::string& path) {
             const auto modified = statusOf(path).value().modified;
             const std::string other = home.fileOfSize("other", kLength);
             TempHome::setTimes(other, modified, modified);
             std::filesystem::rename(other, path);
         }},
        {"vanishes", [](const TempHome&, const std::string& path) { std::filesystem::remove(path); }},
        {"becomes a link",
         [](const TempHome& home, const std::string& path) {
             std::filesystem::rename(path, home.path("moved"));
             home.link("a", home.path("moved"));
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        const Cand a{home.fileOfSize("a", kLength), kLength, {}};
        const Cand b{home.fileOfSize("b", kLength), kLength, {}};
        const std::vector<Suspect> suspects{suspectOf(a), suspectOf(b)};
        FileHasher hasher{{}};
        ContentComparer comparer{{}};
        ASSERT_EQ(hasher.full(suspects[0]), hasher.full(suspects[1]));
        ASSERT_EQ(comparer.identical(suspects, [](std::int64_t) {}).size(), 1U);

        c.change(home, a.path);
        EXPECT_FALSE(hasher.quick(suspects[0]));
        EXPECT_FALSE(hasher.full(suspects[0]));
        EXPECT_TRUE(comparer.identical(suspects, [](std::int64_t) {}).empty());
        EXPECT_TRUE(hasher.full(suspects[1])) << "the other file is as it was";
    }
}

TEST(FileHasherTest, aStoppedHasherGivesNoHash)
{
    const TempHome home;
    const Cand a{home.fileOfSize("a", kLength), kLength, {}};
    std::stop_source stop;
    FileHasher hasher(stop.get_token());
    const auto before = hasher.full(suspectOf(a));
    stop.request_stop();
    EXPECT_TRUE(before);
    EXPECT_FALSE(hasher.full(suspectOf(a)));
    EXPECT_FALSE(hasher.quick(suspectOf(a)));
}

} // namespace
} // namespace orlen

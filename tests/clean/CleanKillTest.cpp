#include "clean/Cleaner.h"

#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"
#include "platform/UniqueFd.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <map>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using std::chrono::microseconds;

constexpr int kRounds = 40;
constexpr int kItems = 20;

/// A set of items, every fifth of them a folder, in folders that make many of them share a name.
class Items {
public:
    explicit Items(const TempHome& home)
    {
        for (int item = 0; item < kItems; ++item) {
            const std::string path =
                home.path("in-" + std::to_string(item) + "/item-" + std::to_string(item % 3));
            (void)home.file(item % 5 == 0 ? path + "/content" : path, path);
            m_identities[path] = identity(path);
        }
    }

    [[nodiscard]] std::vector<FileEntry> entries() const
    {
        std::vector<FileEntry> entries;
        for (const auto& [path, id] : m_identities)
            entries.push_back({path, 4096, {}, {}, {}, {}});
        return entries;
    }

    /// Checks that each item is in its place, or in the Trash with an info file that names its place. Returns
    /// how many are in the Trash.
    [[nodiscard]] int expectNoneLost(const std::string& files) const
    {
        std::map<FileIdentity, std::string> inTrash;
        for (const std::string& name : listNames(files)) {
            const std::string path = PathText::join(files, name);
            inTrash.emplace(identity(path), Trash::originalPath(path));
        }
        int moved = 0;
        for (const auto& [path, id] : m_identities) {
            const bool isInPlace = identity(path) == id;
            const auto found = inTrash.find(id);
            EXPECT_NE(isInPlace, found != inTrash.end()) << path;
            if (found != inTrash.end()) {
                EXPECT_EQ(found->second, path);
                ++moved;
            }
        }
        return moved;
    }

private:
    std::map<std::string, FileIdentity> m_identities;
};

/// Cleans in a process of its own, which is killed a while after it has begun with an item.
void cleanAndKill(const Items& items, int item, microseconds later)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const UniqueFd out(ends[0]);
    UniqueFd in(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) {
        (void)Cleaner::run(items.entries(), "Killed",
                           [&](int, int, const std::string&) { (void)!::write(in.get(), "i", 1); });
        ::_exit(0);
    }
    in.reset();
    char mark = 0;
    for (int begun = 0; begun <= item && ::read(out.get(), &mark, 1) == 1;)
        ++begun;
    std::this_thread::sleep_for(later);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

} // namespace

TEST(CleanKillTest, aKillAtAnyMomentLosesNothing)
{
    std::mt19937 random(20'240'229);
    std::uniform_int_distribution<int> item(0, kItems - 1);
    std::uniform_int_distribution<microseconds::rep> later(0, 200); // about as long as an item takes
    int interrupted = 0;
    for (int round = 0; round < kRounds; ++round) {
        SCOPED_TRACE(round);
        const TempHome home;
        const Items items(home);
        const std::string files = home.path(".local/share/Trash/files");
        cleanAndKill(items, item(random), microseconds(later(random)));
        const int moved = items.expectNoneLost(files);
        interrupted += moved > 0 && moved < kItems ? 1 : 0;
        // What the killed one left behind is no obstacle for the next.
        const CleanRecord rest = Cleaner::run(items.entries(), "Rest", [](int, int, const std::string&) {});
        EXPECT_EQ(rest.failed, moved);
        EXPECT_EQ(items.expectNoneLost(files), kItems);
    }
    EXPECT_GT(interrupted, kRounds / 2) << "the kills did not fall into the work";
}

} // namespace orlen

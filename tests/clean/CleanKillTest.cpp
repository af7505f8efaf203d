#include "clean/Cleaner.h"
#include "clean/History.h"
#include "clean/Persist.h"

#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"
#include "platform/UniqueFd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
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
using testing::IsEmpty;

constexpr int kItems = 20;

/// How often to kill; more of it with the variable ORLEN_KILLS.
int rounds()
{
    const char* wanted = std::getenv("ORLEN_KILLS");
    return wanted == nullptr ? 20 : std::atoi(wanted);
}

/// A set of items, every fifth of them a folder, in folders that make many of them share a name.
class Items {
public:
    explicit Items(const TempHome& home) : m_trash(home.path(".local/share/Trash"))
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

    /// Checks that each item is in its place, or in the Trash with an info file that names its place, and
    /// that the history knows which. Returns how many are in the Trash.
    [[nodiscard]] int expectNoneLostOrUnknown(const std::vector<CleanRecord>& history) const
    {
        std::map<FileIdentity, std::string> inTrash;
        for (const std::string& name : listNames(m_trash + "/files")) {
            const std::string path = PathText::join(m_trash + "/files", name);
            EXPECT_TRUE(inTrash.emplace(identity(path), path).second);
        }
        std::map<std::string, std::string> known;
        for (const CleanRecord& record : history) {
            for (const TrashedItem& item : record.items) {
                const bool isNews = item.restored || known.emplace(item.original, item.trashed).second;
                EXPECT_TRUE(isNews) << item.original;
            }
        }
        for (const auto& [path, id] : m_identities) {
            const bool isInPlace = identity(path) == id;
            const auto found = inTrash.find(id);
            EXPECT_NE(isInPlace, found != inTrash.end()) << path;
            EXPECT_EQ(known.contains(path), !isInPlace) << path;
            if (found != inTrash.end()) {
                EXPECT_EQ(Trash::originalPath(found->second), path);
                EXPECT_EQ(known[path], found->second);
            }
        }
        EXPECT_EQ(listNames(m_trash + "/info").size(), inTrash.size()) << "info files without an item";
        return static_cast<int>(inTrash.size());
    }

private:
    std::string m_trash;
    std::map<std::string, FileIdentity> m_identities;
};

/// Calls `work` in a process of its own, which is killed a while after it has called `begun` so many times,
/// or ended.
void killed(const std::function<void(const std::function<void()>& begun)>& work, int after,
            microseconds later)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const UniqueFd out(ends[0]);
    UniqueFd in(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) {
        work([&] { (void)!::write(in.get(), "i", 1); });
        ::_exit(0);
    }
    in.reset();
    char mark = 0;
    for (int begun = 0; begun <= after && ::read(out.get(), &mark, 1) == 1;)
        ++begun;
    std::this_thread::sleep_for(later);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

std::vector<CleanRecord> historyAfterStart()
{
    std::vector<CleanRecord> history = Persist::loadHistory();
    History::recover(history);
    EXPECT_FALSE(History::isUnfinished());
    EXPECT_EQ(Persist::loadHistory().size(), history.size());
    for (const std::string& name : listNames(Persist::dir()))
        EXPECT_EQ(name.find(".new-"), std::string::npos) << name;
    return history;
}

void clean(const Items& items, const std::function<void()>& begun)
{
    std::vector<CleanRecord> history = Persist::loadHistory();
    const auto cleaned =
        Cleaner::run(items.entries(), "Clean", [&](int, int, const std::string&) { begun(); });
    EXPECT_TRUE(History::add(history, cleaned.record).ok());
}

/// When to kill: at which of the steps that are reported, and how long after it.
class Moments {
public:
    int step() { return m_step(m_random); }
    microseconds later() { return microseconds(m_later(m_random)); }

private:
    std::mt19937 m_random{20'240'229};
    std::uniform_int_distribution<int> m_step{-1, kItems};
    std::uniform_int_distribution<microseconds::rep> m_later{0, 300}; // longer than an item takes
};

} // namespace

TEST(CleanKillTest, aKilledCleanUpLosesNothingAndIsInTheHistoryAfterTheNextStart)
{
    Moments moments;
    int interrupted = 0;
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        const TempHome home;
        const Items items(home);
        killed([&](const auto& begun) { clean(items, begun); }, moments.step(), moments.later());
        const int moved = items.expectNoneLostOrUnknown(historyAfterStart());
        interrupted += moved > 0 && moved < kItems ? 1 : 0;
        // What the killed one left behind is no obstacle for the next.
        clean(items, [] {});
        EXPECT_EQ(items.expectNoneLostOrUnknown(historyAfterStart()), kItems);
    }
    EXPECT_GT(interrupted, rounds() / 2) << "the kills did not fall into the work";
}

TEST(CleanKillTest, aKilledRestoreIsMarkedAsFarAsItCame)
{
    Moments moments;
    int interrupted = 0;
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        const TempHome home;
        const Items items(home);
        clean(items, [] {});
        const auto restore = [](const std::function<void()>& begun) {
            std::vector<CleanRecord> history = Persist::loadHistory();
            const auto restored =
                Cleaner::restore(history.front(), {}, [&](int, int, const std::string&) { begun(); });
            EXPECT_TRUE(History::update(history, restored.record).ok());
        };
        killed(restore, moments.step(), moments.later());
        const int left = items.expectNoneLostOrUnknown(historyAfterStart());
        interrupted += left > 0 && left < kItems ? 1 : 0;
        restore([] {});
        EXPECT_EQ(items.expectNoneLostOrUnknown(historyAfterStart()), 0);
    }
    EXPECT_GT(interrupted, rounds() / 2) << "the kills did not fall into the work";
}

} // namespace orlen

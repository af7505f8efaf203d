#include "clean/Cleaner.h"
#include "clean/History.h"
#include "clean/Persist.h"

#include "clean/WatchedItems.h"
#include "platform/files/Folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen {

namespace {

using std::chrono::microseconds;

constexpr int kItems = WatchedItems::kCount;

/// How often to kill; more of it with the variable ORLEN_KILLS.
int rounds()
{
    const char* wanted = std::getenv("ORLEN_KILLS");
    return wanted == nullptr ? 20 : std::atoi(wanted);
}

/// Ends this process a while from now, whatever it is doing then.
void killLater(microseconds later)
{
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer{};
    itimerspec timing{};
    timing.it_value.tv_nsec = std::chrono::nanoseconds(later).count() + 1; // 0 would stop the timer
    if (::timer_create(CLOCK_MONOTONIC, &event, &timer) != 0 ||
        ::timer_settime(timer, 0, &timing, nullptr) != 0)
        ::_exit(1);
}

/// Calls `work` in a process of its own, which is killed a while after it has called `begun` so many times
/// (counted from 0; -1: after it has started), or ends.
void killed(const std::function<void(const std::function<void()>& begun)>& work, int after,
            microseconds later)
{
    const pid_t child = ::fork();
    if (child == 0) {
        if (after < 0)
            killLater(later);
        work([&, begun = 0]() mutable {
            if (begun++ == after)
                killLater(later);
        });
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
}

std::vector<CleanRecord> historyAfterStart()
{
    std::vector<CleanRecord> history = Persist::loadHistory().records;
    History::recover(history);
    EXPECT_FALSE(History::isUnfinished());
    EXPECT_EQ(Persist::loadHistory().records.size(), history.size());
    for (const std::string& name : listNames(Persist::dir()))
        EXPECT_EQ(name.find(".new-"), std::string::npos) << name;
    return history;
}

void clean(const WatchedItems& items, const std::function<void()>& begun)
{
    std::vector<CleanRecord> history = Persist::loadHistory().records;
    const auto cleaned =
        Cleaner::run(items.entries(), "Clean", [&](int, int, const std::string&) { begun(); });
    EXPECT_TRUE(History::add(history, cleaned.record).ok());
}

/// How long an item takes here, be the disk slow or fast.
microseconds timeOfAnItem()
{
    const TempHome home;
    const WatchedItems items(home);
    std::vector<std::chrono::steady_clock::time_point> steps;
    clean(items, [&] { steps.push_back(std::chrono::steady_clock::now()); });
    return std::chrono::duration_cast<microseconds>(steps.back() - steps.front()) / kItems;
}

/// When to kill: at which of the steps that are reported, and how long after it.
class Moments {
public:
    int step() { return m_step(m_random); }
    microseconds later() { return microseconds(m_later(m_random)); }

private:
    std::mt19937 m_random{20'240'229};
    std::uniform_int_distribution<int> m_step{-1, kItems};
    std::uniform_int_distribution<microseconds::rep> m_later{0, timeOfAnItem().count()};
};

} // namespace

TEST(CleanKillTest, aKilledCleanUpLosesNothingAndIsInTheHistoryAfterTheNextStart)
{
    Moments moments;
    int interrupted = 0;
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        const TempHome home;
        const WatchedItems items(home);
        killed([&](const auto& begun) { clean(items, begun); }, moments.step(), moments.later());
        const int moved = items.expectNoneLostOrUnknown(historyAfterStart());
        items.expectNoStrayInfo();
        interrupted += moved > 0 && moved < kItems ? 1 : 0;
        // What the killed one left behind is no obstacle for the next.
        clean(items, [] {});
        EXPECT_EQ(items.expectNoneLostOrUnknown(historyAfterStart()), kItems);
    }
    EXPECT_GT(interrupted, rounds() / 4) << "the kills did not fall into the work";
}

TEST(CleanKillTest, aKilledRestoreIsMarkedAsFarAsItCame)
{
    Moments moments;
    int interrupted = 0;
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        const TempHome home;
        const WatchedItems items(home);
        clean(items, [] {});
        const auto restore = [](const std::function<void()>& begun) {
            std::vector<CleanRecord> history = Persist::loadHistory().records;
            const auto restored =
                Cleaner::restore(history.front(), {}, [&](int, int, const std::string&) { begun(); });
            EXPECT_TRUE(History::update(history, restored.record).ok());
        };
        killed(restore, moments.step(), moments.later());
        const int left = items.expectNoneLostOrUnknown(historyAfterStart());
        items.expectNoStrayInfo();
        interrupted += left > 0 && left < kItems ? 1 : 0;
        restore([] {});
        EXPECT_EQ(items.expectNoneLostOrUnknown(historyAfterStart()), 0);
    }
    EXPECT_GT(interrupted, rounds() / 4) << "the kills did not fall into the work";
}

} // namespace orlen

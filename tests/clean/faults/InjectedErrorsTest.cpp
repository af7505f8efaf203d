#include "clean/Cleaner.h"
#include "clean/History.h"
#include "clean/Persist.h"
#include "clean/WatchedItems.h"
#include "clean/faults/Faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen {

namespace {

constexpr int kItems = 6;

/// All of them take minutes: wanted with the variable ORLEN_FAULTS.
int stride()
{
    return std::getenv("ORLEN_FAULTS") == nullptr ? 37 : 1;
}

/// What a process that cleans or restores told when it ended.
enum Told { allIsWell = 0, something = 1 };

int toldOf(bool isRecorded, int failed)
{
    return isRecorded && failed == 0 ? allIsWell : something;
}

int clean(const WatchedItems& items)
{
    std::vector<CleanRecord> history = Persist::loadHistory().records;
    const auto cleaned = Cleaner::run(items.entries(), "Clean", [](int, int, const std::string&) {});
    return toldOf(History::add(history, cleaned.record).ok(), cleaned.record.failed);
}

int restore(const WatchedItems&)
{
    std::vector<CleanRecord> history = Persist::loadHistory().records;
    const auto restored = Cleaner::restore(history.front());
    return toldOf(History::update(history, restored.record).ok(), restored.failed);
}

using Work = int (*)(const WatchedItems&);

/// Works in a process of its own, so that nothing of what it knows is left.
int inProcess(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status);
}

/// Stands for the reserve without the time it takes to write one.
void makeReserve(const TempHome& home)
{
    std::filesystem::resize_file(home.file(".local/share/Orlen/reserve"), 8'000'000);
}

/// The number of calls that change files.
int callsOf(Work work, bool isRestore)
{
    const TempHome home;
    makeReserve(home);
    const WatchedItems items(home, kItems);
    EXPECT_EQ(isRestore ? clean(items) : allIsWell, allIsWell);
    Faults::arm(-1, 0, Faults::Extent::once);
    EXPECT_EQ(work(items), allIsWell);
    return Faults::disarm();
}

void tryOne(Work work, int number, int error, Faults::Extent extent)
{
    const TempHome home;
    makeReserve(home);
    const WatchedItems items(home, kItems);
    const int before = work == restore ? kItems : 0;
    ASSERT_EQ(before > 0 ? clean(items) : allIsWell, allIsWell);
    const int told = inProcess([&] {
        Faults::arm(number, error, extent);
        return work(items);
    });
    if (told == allIsWell) {
        EXPECT_EQ(items.expectNoneLostOrUnknown(Persist::loadHistory().records), kItems - before)
            << "not told";
    }
    std::vector<CleanRecord> history = Persist::loadHistory().records;
    History::recover(history);
    (void)items.expectNoneLostOrUnknown(history);
}

void tryAll(Work work)
{
    constexpr int kErrors[] = {EIO, ENOSPC, EACCES, EROFS, EMFILE};
    const int calls = callsOf(work, work == restore);
    ASSERT_GT(calls, kItems * 3);
    int tried = 0;
    for (const auto extent : {Faults::Extent::once, Faults::Extent::fromThere}) {
        for (const int error : kErrors) {
            for (int number = tried % stride(); number < calls; number += stride()) {
                SCOPED_TRACE(std::string(std::strerror(error)) + " at call " + std::to_string(number) +
                             (extent == Faults::Extent::once ? "" : " and all later ones"));
                tryOne(work, number, error, extent);
                ++tried;
            }
        }
    }
    testing::Test::RecordProperty("tried", tried);
    std::printf("%d injected errors\n", tried);
}

} // namespace

TEST(InjectedErrorsTest, noneInACleanUpLosesAnItemOrStaysUntold)
{
    tryAll(clean);
}

TEST(InjectedErrorsTest, noneInARestoreLosesAnItemOrStaysUntold)
{
    tryAll(restore);
}

} // namespace orlen

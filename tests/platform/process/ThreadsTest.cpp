#include "platform/process/Threads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen {
namespace {

TEST(ThreadsTest, workIsSharedOutAndDoneEvenWhereNoThreadCanBeStarted)
{
    std::atomic<unsigned> seen{0};
    const auto work = [&](std::size_t i) { seen |= 1U << i; };
    Threads::runOn("orlen-test", 4, work);
    EXPECT_EQ(seen.load(), 0b1111U);
    seen = 0;
    Threads::runOn("orlen-test", 0, work);
    EXPECT_EQ(seen.load(), 0U);

    // No limit of processes binds root.
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        constexpr uid_t kNobody = 65'534;
        const rlimit none{0, 0};
        if ((::geteuid() == 0 && ::setuid(kNobody) != 0) || ::setrlimit(RLIMIT_NPROC, &none) != 0)
            ::_exit(2);
        Threads::runOn("orlen-test", 4, work);
        const bool isRefused = !Threads::start("orlen-test", [](const std::stop_token&) {});
        ::_exit(isRefused && seen.load() == 1 ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

} // namespace
} // namespace orlen

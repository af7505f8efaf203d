#include "platform/process/ThreadPriority.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <thread>

namespace orlen {

TEST(ThreadPriorityTest, onlyTheThreadAndWhatItStartsGiveWay)
{
    const int before = ::getpriority(PRIO_PROCESS, 0);
    int own = 0;
    int started = 0;
    std::thread([&] {
        ThreadPriority::giveWay();
        own = ::getpriority(PRIO_PROCESS, 0);
        std::thread([&] { started = ::getpriority(PRIO_PROCESS, 0); }).join();
    }).join();
    EXPECT_GE(own, 10);
    EXPECT_EQ(started, own);
    EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), before);
}

} // namespace orlen

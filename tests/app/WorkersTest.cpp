#include "app/Workers.h"

#include "app/EventLoop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QObject>

#include <pthread.h>

#include <vector>

namespace orlen {

namespace {

/// While it lives no thread can be started: the stack that each would get is larger than any address space.
class NoThreads {
public:
    NoThreads()
    {
        ::pthread_attr_init(&m_before);
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t impossible;
        ::pthread_attr_init(&impossible);
        ::pthread_attr_setstacksize(&impossible, std::size_t{1} << 60U);
        ::pthread_setattr_default_np(&impossible);
        ::pthread_attr_destroy(&impossible);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;
    ~NoThreads()
    {
        ::pthread_setattr_default_np(&m_before);
        ::pthread_attr_destroy(&m_before);
    }

private:
    pthread_attr_t m_before{};
};

} // namespace

TEST(WorkersTest, workIsDoneEvenWhenNoThreadCanBeStarted)
{
    QObject owner;
    Workers workers(owner);
    int result = 0;
    {
        const NoThreads none;
        (void)workers.start([](const std::stop_token& stop) { return stop.stop_requested() ? 1 : 2; },
                            [&](int value) { result = value; });
        EXPECT_EQ(result, 0) << "the answer comes by the event loop as ever";
    }
    EXPECT_TRUE(waitUntil([&] { return result == 2; }));
}

TEST(WorkersTest, onlyTheLatestAnswerArrives)
{
    QObject owner;
    Workers workers(owner);
    Latest latest;
    std::vector<int> answers;
    for (const int number : {1, 2, 3})
        workers.start(
            latest, [number](const std::stop_token&) { return number; },
            [&](int value) { answers.push_back(value); });
    ASSERT_TRUE(waitUntil([&] { return !answers.empty(); }));
    workers.start(
        latest, [](const std::stop_token&) { return 4; }, [&](int value) { answers.push_back(value); });
    latest.drop();
    workers.finish();
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, std::vector<int>{3});
}

} // namespace orlen

#pragma once

#include "app/MainThread.h"

#include <functional>
#include <list>
#include <memory>
#include <stop_token>
#include <thread>
#include <utility>

namespace orlen {

/// Work of one purpose of which only the latest counts; belongs to the owner of the workers that do it.
class Latest {
public:
    /// Asks the work to stop; its result will not arrive.
    void drop()
    {
        m_stop.request_stop();
        ++m_number;
    }

private:
    friend class Workers;
    int m_number = 0;
    std::stop_source m_stop{std::nostopstate};
};

/// Threads that do the blocking work of an object of the main thread. Each piece of work has a thread of its
/// own, so that none waits for another whatever the number of cores; when the system gives none, it is done
/// before `start` returns. Used on the main thread.
class Workers {
public:
    explicit Workers(QObject& owner) : m_mainThread(owner) {}
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers() { finish(); }

    /// Starts `work(stop)`, whose result `done(result)` gets on the main thread. When the owner is gone by
    /// then, `done` is dropped uncalled; the worker itself never calls it. The stop source ends this piece of
    /// work.
    template <typename Work, typename Done>
    std::stop_source start(Work work, Done done)
    {
        return launch(
            [work = std::move(work), done = std::move(done), mainThread = m_mainThread](auto stop) mutable {
                auto result = std::make_shared<decltype(work(stop))>(work(stop));
                mainThread.post([result, done = std::move(done)] { done(std::move(*result)); });
            });
    }

    /// The same in place of the work that `latest` stands for, which is dropped.
    template <typename Work, typename Done>
    void start(Latest& latest, Work work, Done done)
    {
        latest.drop();
        latest.m_stop =
            start(std::move(work), [&latest, number = latest.m_number, done = std::move(done)](auto result) {
                if (number == latest.m_number)
                    done(std::move(result));
            });
    }

    /// Asks all work to stop and waits until it has.
    void finish();

    /// For work that reports before it ends.
    [[nodiscard]] const MainThread& mainThread() const { return m_mainThread; }

private:
    struct Ended; ///< set by a thread as the last thing it does
    struct Worker {
        std::shared_ptr<Ended> ended;
        std::jthread thread;
    };

    std::stop_source launch(const std::function<void(std::stop_token)>& work);

    MainThread m_mainThread;
    std::list<Worker> m_workers;
};

} // namespace orlen

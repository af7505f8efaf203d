#pragma once

#include "app/MainThread.h"

#include <functional>
#include <list>
#include <memory>
#include <stop_token>
#include <thread>
#include <utility>

namespace orlen {

/// Work where only the latest run counts. Owned by whoever owns the workers.
class Latest {
public:
    /// Asks the work to stop; its result is dropped.
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

/// Threads for the blocking work of a main-thread object. Each piece of work gets its own thread, so none
/// waits for another whatever the number of cores; if no thread can be created, it runs before `start`
/// returns. Main thread only.
class Workers {
public:
    explicit Workers(QObject& owner) : m_mainThread(owner) {}
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers() { finish(); }

    /// Runs `work(stop)` on a worker, then `done(result)` on the main thread unless the owner is gone by
    /// then. The returned stop source stops this piece of work.
    template <typename Work, typename Done>
    std::stop_source start(Work work, Done done)
    {
        return launch(
            [work = std::move(work), done = std::move(done), mainThread = m_mainThread](auto stop) mutable {
                auto result = std::make_shared<decltype(work(stop))>(work(stop));
                mainThread.post([result, done = std::move(done)] { done(std::move(*result)); });
            });
    }

    /// The same, replacing the work of `latest`, which is dropped.
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

    /// For work that reports progress.
    [[nodiscard]] const MainThread& mainThread() const { return m_mainThread; }

private:
    struct Ended; ///< set by a thread just before it ends
    struct Worker {
        std::shared_ptr<Ended> ended;
        std::jthread thread;
    };

    std::stop_source launch(const std::function<void(std::stop_token)>& work);

    MainThread m_mainThread;
    std::list<Worker> m_workers;
};

} // namespace orlen

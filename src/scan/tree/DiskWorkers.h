#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace orlen {

/// The one pool of threads for disk work. More threads than cores on purpose: most of them wait for the disk,
/// and a cold disk answers many requests at once several times as fast as two.
///
/// Work comes as jobs that are shared out piece by piece. Threads go round the jobs that have pieces, those
/// of user priority first, so that a small job does not wait behind a large one.
class DiskWorkers {
public:
    enum class Priority { user, utility };

    /// One operation's work. Lives in `run` of the thread that wants it done.
    class Job {
    public:
        explicit Job(Priority priority) : m_priority(priority) {}
        Job(const Job&) = delete;
        Job& operator=(const Job&) = delete;
        virtual ~Job() = default;

    protected:
        /// Takes one waiting piece and does it; there is always one. Called by several threads at once.
        virtual void doPiece() = 0;
        /// Tells that `pieces` more are waiting to be taken.
        void announce(int pieces);

    private:
        friend class DiskWorkers;
        const Priority m_priority;
        std::atomic<int> m_waiting{0};    ///< pieces announced and not yet taken
        std::atomic<int> m_unfinished{0}; ///< pieces announced and not yet done
        std::atomic<bool> m_isOwnerIdle{false};
        int m_helpers = 0; ///< pool threads inside; guarded by the pool's lock
        std::condition_variable m_ownerWoken;
    };

    /// The process's pool, started on first use.
    [[nodiscard]] static DiskWorkers& shared();

    /// Has the job done and returns when no piece is left. The calling thread takes its share of the work.
    void run(Job& job);

    [[nodiscard]] std::size_t threads() const { return m_threads.size(); }

private:
    DiskWorkers();
    ~DiskWorkers();
    void work(const std::stop_token& stop);
    [[nodiscard]] Job* nextJob();
    bool doOne(Job& job);
    void wakeFor(Job& job, int pieces);
    void wakeOwner(Job& job);

    std::mutex m_lock;
    std::condition_variable m_workAnnounced;
    std::vector<Job*> m_jobs; ///< running jobs in turn order
    std::atomic<int> m_idle{0};
    std::vector<std::jthread> m_threads; ///< last: ends before what it uses
};

} // namespace orlen

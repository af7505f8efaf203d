#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace orlen {

/// The thread pool for disk work. It has more threads than cores on purpose: most wait for the disk, and a
/// cold disk serves many requests at once several times faster than two.
///
/// Work comes as jobs made of pieces. Threads take turns among the jobs with pieces waiting, user priority
/// first, so that a small job does not wait behind a large one.
class DiskWorkers {
public:
    enum class Priority { user, utility };

    /// One operation's work. Lives in the calling thread's `run`.
    class Job {
    public:
        explicit Job(Priority priority) : m_priority(priority) {}
        Job(const Job&) = delete;
        Job& operator=(const Job&) = delete;
        virtual ~Job() = default;

    protected:
        /// Takes and does one waiting piece; there always is one. Called by several threads at once.
        virtual void doPiece() = 0;
        /// Announces `pieces` more waiting pieces.
        void announce(int pieces);

    private:
        friend class DiskWorkers;
        const Priority m_priority;
        std::atomic<int> m_waiting{0};    ///< announced but not taken
        std::atomic<int> m_unfinished{0}; ///< announced but not done
        std::atomic<bool> m_isOwnerIdle{false};
        int m_helpers = 0; ///< pool threads inside; guarded by the pool's lock
        std::condition_variable m_ownerWoken;
    };

    /// The process's pool, started on first use.
    [[nodiscard]] static DiskWorkers& shared();

    /// Does the job and returns when no piece is left. The calling thread helps.
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
    std::vector<Job*> m_jobs; ///< running jobs, in turn
    std::atomic<int> m_idle{0};
    std::vector<std::jthread> m_threads; ///< last: joined before the rest is destroyed
};

} // namespace orlen

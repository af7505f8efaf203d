#include "scan/tree/DiskWorkers.h"

#include "platform/process/Threads.h"

#include <algorithm>

namespace orlen {

namespace {

// Between 8 and 16 threads a cold disk stops gaining, and a warm one does not lose.
constexpr unsigned kFewestThreads = 8;
constexpr unsigned kMostThreads = 16;
// Pieces done before a thread checks the other jobs again.
constexpr int kPiecesInTurn = 16;

} // namespace

DiskWorkers& DiskWorkers::shared()
{
    static DiskWorkers workers;
    return workers;
}

DiskWorkers::DiskWorkers()
{
    const unsigned wanted = std::clamp(std::thread::hardware_concurrency() * 4, kFewestThreads, kMostThreads);
    for (unsigned i = 0; i < wanted; ++i) {
        // A job's owner does whatever nobody else does, so it works without any threads.
        auto thread = Threads::start("orlen-disk", [this](const std::stop_token& stop) { work(stop); });
        if (!thread)
            break;
        m_threads.push_back(std::move(*thread));
    }
}

DiskWorkers::~DiskWorkers()
{
    for (std::jthread& thread : m_threads)
        thread.request_stop();
    const std::lock_guard lock(m_lock);
    m_workAnnounced.notify_all();
}

void DiskWorkers::Job::announce(int pieces)
{
    m_unfinished.fetch_add(pieces);
    m_waiting.fetch_add(pieces);
    // A thread going to sleep says so before its last look for work, and work is counted before checking who
    // sleeps: one of the two always sees the other.
    DiskWorkers& pool = shared();
    if (m_isOwnerIdle.load() || pool.m_idle.load() > 0)
        pool.wakeFor(*this, pieces);
}

void DiskWorkers::wakeFor(Job& job, int pieces)
{
    const std::lock_guard lock(m_lock);
    if (job.m_isOwnerIdle.load()) {
        job.m_ownerWoken.notify_one();
        --pieces;
    }
    for (int i = std::min(pieces, m_idle.load()); i > 0; --i)
        m_workAnnounced.notify_one();
}

void DiskWorkers::wakeOwner(Job& job)
{
    const std::lock_guard lock(m_lock);
    job.m_ownerWoken.notify_one();
}

/// A job with waiting pieces: the first of user priority, else the first of the others. It moves to the end
/// of the line. Call under the lock.
DiskWorkers::Job* DiskWorkers::nextJob()
{
    auto found = m_jobs.end();
    for (auto at = m_jobs.begin(); at != m_jobs.end(); ++at) {
        if ((*at)->m_waiting.load() <= 0)
            continue;
        if ((*at)->m_priority == Priority::user) {
            found = at;
            break;
        }
        if (found == m_jobs.end())
            found = at;
    }
    if (found == m_jobs.end())
        return nullptr;
    std::rotate(found, found + 1, m_jobs.end());
    return m_jobs.back();
}

bool DiskWorkers::doOne(Job& job)
{
    int waiting = job.m_waiting.load();
    while (waiting > 0 && !job.m_waiting.compare_exchange_weak(waiting, waiting - 1)) {
    }
    if (waiting <= 0)
        return false;
    job.doPiece();
    if (job.m_unfinished.fetch_sub(1) == 1)
        wakeOwner(job);
    return true;
}

void DiskWorkers::work(const std::stop_token& stop)
{
    std::unique_lock lock(m_lock);
    while (!stop.stop_requested()) {
        Job* job = nextJob();
        if (job == nullptr) {
            m_idle.fetch_add(1);
            job = nextJob();
            if (job == nullptr && !stop.stop_requested())
                m_workAnnounced.wait(lock);
            m_idle.fetch_sub(1);
            if (job == nullptr)
                continue;
        }
        ++job->m_helpers;
        lock.unlock();
        for (int i = 0; i < kPiecesInTurn && doOne(*job); ++i) {
        }
        lock.lock();
        --job->m_helpers;
        if (job->m_helpers == 0)
            job->m_ownerWoken.notify_one();
    }
}

void DiskWorkers::run(Job& job)
{
    {
        const std::lock_guard lock(m_lock);
        m_jobs.push_back(&job);
        m_workAnnounced.notify_all();
    }
    while (job.m_unfinished.load() > 0) {
        if (doOne(job))
            continue;
        std::unique_lock lock(m_lock);
        job.m_isOwnerIdle.store(true);
        job.m_ownerWoken.wait(lock, [&] { return job.m_waiting.load() > 0 || job.m_unfinished.load() == 0; });
        job.m_isOwnerIdle.store(false);
    }
    // A helper may still be leaving: the job must outlive it.
    std::unique_lock lock(m_lock);
    std::erase(m_jobs, &job);
    job.m_ownerWoken.wait(lock, [&] { return job.m_helpers == 0; });
}

} // namespace orlen

#include "platform/images/IdleWorkers.h"

#include "platform/process/ThreadName.h"

#include <algorithm>
#include <iterator>
#include <poll.h>
#include <sys/eventfd.h>

namespace orlen {

void IdleWorkers::add(Worker worker)
{
    const std::lock_guard lock(m_lock);
    m_workers.push_back(std::move(worker));
    if (!m_changed.isOpen())
        m_changed = UniqueFd(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!m_changed.isOpen())
        return; // Out of descriptors: who has ended is let go when it is taken.
    if (!m_watching.joinable())
        m_watching = std::jthread([this](const std::stop_token& stop) { watch(stop); });
    (void)::eventfd_write(m_changed.get(), 1);
}

IdleWorkers::Worker IdleWorkers::take()
{
    const std::lock_guard lock(m_lock);
    if (m_workers.empty())
        return nullptr;
    Worker worker = std::move(m_workers.back());
    m_workers.pop_back();
    return worker;
}

void IdleWorkers::watch(const std::stop_token& stop)
{
    nameThisThread("idle workers");
    const std::stop_callback wake(stop, [this] { (void)::eventfd_write(m_changed.get(), 1); });
    while (!stop.stop_requested()) {
        std::vector<pollfd> waiting;
        {
            const std::lock_guard lock(m_lock);
            waiting.push_back({m_changed.get(), POLLIN, 0});
            // If a worker was taken and its descriptor number reused, this only wakes up for nothing.
            for (const Worker& worker : m_workers)
                waiting.push_back({worker->socket(), 0, 0});
        }
        (void)::poll(waiting.data(), waiting.size(), -1);
        eventfd_t changes = 0;
        (void)::eventfd_read(m_changed.get(), &changes);
        letEndedGo();
    }
}

void IdleWorkers::letEndedGo()
{
    std::vector<Worker> ended; // Declared before the lock, so that each is waited for without it.
    const std::lock_guard lock(m_lock);
    const auto first = std::stable_partition(m_workers.begin(), m_workers.end(),
                                             [](const Worker& worker) { return !worker->hasEnded(); });
    std::move(first, m_workers.end(), std::back_inserter(ended));
    m_workers.erase(first, m_workers.end());
}

} // namespace orlen

#include "app/Workers.h"

#include <atomic>

namespace orlen {

struct Workers::Ended {
    std::atomic<bool> flag{false};
};

std::stop_source Workers::launch(std::function<void(std::stop_token)> work)
{
    m_workers.remove_if([](const Worker& worker) { return worker.ended->flag.load(); });
    const auto ended = std::make_shared<Ended>();
    std::jthread thread([work = std::move(work), ended](const std::stop_token& stop) {
        work(stop);
        ended->flag = true;
    });
    std::stop_source stop = thread.get_stop_source();
    m_workers.push_back({ended, std::move(thread)});
    return stop;
}

void Workers::finish()
{
    // First all, then wait: so they end side by side.
    for (Worker& worker : m_workers)
        worker.thread.request_stop();
    m_workers.clear();
}

} // namespace orlen

#include "app/Workers.h"

#include <atomic>
#include <cstdio>
#include <system_error>

namespace orlen {

struct Workers::Ended {
    std::atomic<bool> flag{false};
};

std::stop_source Workers::launch(const std::function<void(std::stop_token)>& work)
{
    m_workers.remove_if([](const Worker& worker) { return worker.ended->flag.load(); });
    const auto ended = std::make_shared<Ended>();
    try {
        std::jthread thread([work, ended](const std::stop_token& stop) {
            work(stop);
            ended->flag = true;
        });
        std::stop_source stop = thread.get_stop_source();
        m_workers.push_back({ended, std::move(thread)});
        return stop;
    } catch (const std::system_error& error) {
        // Slow is better than not at all, and a clean-up must reach the history.
        std::fprintf(stderr, "orlen: no thread could be started (%s); working without one.\n",
                     error.code().message().c_str());
    }
    std::stop_source stop;
    work(stop.get_token());
    return stop;
}

void Workers::finish()
{
    // Stop all before waiting, so that they end in parallel.
    for (Worker& worker : m_workers)
        worker.thread.request_stop();
    m_workers.clear();
}

} // namespace orlen

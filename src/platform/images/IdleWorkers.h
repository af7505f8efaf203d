#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/images/ImageWorker.h"

#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace orlen {

/// Workers that wait for a picture. One that ends meanwhile leaves at once, so that nothing of it stays in
/// the system's list of processes. Any thread; the first worker starts one that sleeps while they do.
class IdleWorkers {
public:
    using Worker = std::unique_ptr<ImageWorker>;

    void add(Worker worker);
    /// The one that came last, which may have ended a moment ago; null when there is none.
    [[nodiscard]] Worker take();

private:
    void watch(const std::stop_token& stop);
    void letEndedGo();

    std::mutex m_lock;
    std::vector<Worker> m_workers;
    UniqueFd m_changed; ///< readable when the watching thread should look again
    std::jthread m_watching;
};

} // namespace orlen

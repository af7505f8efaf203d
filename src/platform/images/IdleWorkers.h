#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/images/ImageWorker.h"

#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace orlen {

/// Workers waiting for a picture. One that exits meanwhile is removed at once, so that it does not stay
/// behind as a zombie. Any thread; the first worker starts a thread that watches them.
class IdleWorkers {
public:
    using Worker = std::unique_ptr<ImageWorker>;

    void add(Worker worker);
    /// The most recently added one, which may have just exited; null if there is none.
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

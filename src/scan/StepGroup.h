#pragma once

#include "model/Finding.h"

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orlen {

/// Runs the steps of a scan in parallel, each on its own thread, so that all start at once regardless of the
/// number of cores. Work they split up goes to the disk workers.
class StepGroup {
public:
    using Step = std::function<std::vector<Finding>()>;

    /// Starts a step, or leaves it to `collect` if no thread can be started. `name` is for the thread, at
    /// most 9 characters.
    void add(const std::string& name, Step step);
    /// Waits for all steps; findings in the order the steps finished.
    [[nodiscard]] std::vector<Finding> collect();

private:
    std::mutex m_lock;
    std::vector<Finding> m_findings;
    std::vector<std::function<void()>> m_withoutThread;
    std::vector<std::jthread> m_threads; ///< last: joined before what they write to is destroyed
};

} // namespace orlen

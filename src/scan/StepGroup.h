#pragma once

#include "model/Finding.h"

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orlen {

/// Runs the steps of a scan side by side, each on a thread of its own, so that all start at once whatever the
/// number of cores; what they share out below them goes to the disk workers.
class StepGroup {
public:
    using Step = std::function<std::vector<Finding>()>;

    /// Starts a step at once, or leaves it to `collect` when no thread can be had. `name` names its thread, 9
    /// letters at most.
    void add(const std::string& name, Step step);
    /// Waits for all steps; their findings in the order in which the steps finished.
    [[nodiscard]] std::vector<Finding> collect();

private:
    std::mutex m_lock;
    std::vector<Finding> m_findings;
    std::vector<std::function<void()>> m_withoutThread;
    std::vector<std::jthread> m_threads; ///< last: joined before what they write to goes
};

} // namespace orlen

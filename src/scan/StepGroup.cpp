#include "scan/StepGroup.h"

#include "platform/process/Threads.h"

#include <iterator>
#include <utility>

namespace orlen {

void StepGroup::add(const std::string& name, Step step)
{
    const auto run = [this, step = std::move(step)] {
        std::vector<Finding> found = step();
        const std::lock_guard lock(m_lock);
        std::move(found.begin(), found.end(), std::back_inserter(m_findings));
    };
    if (auto thread = Threads::start(("orlen-" + name).c_str(), [run](const std::stop_token&) { run(); }))
        m_threads.push_back(std::move(*thread));
    else
        m_withoutThread.emplace_back(run);
}

std::vector<Finding> StepGroup::collect()
{
    for (const auto& run : m_withoutThread)
        run();
    m_withoutThread.clear();
    for (std::jthread& thread : m_threads)
        thread.join();
    m_threads.clear();
    return std::move(m_findings);
}

} // namespace orlen

#include "scan/StepGroup.h"

#include "platform/ThreadName.h"

#include <iterator>

namespace orlen {

void StepGroup::add(const std::string& name, Step step)
{
    m_threads.emplace_back([this, name, step = std::move(step)] {
        nameThisThread(("orlen-" + name).c_str());
        std::vector<Finding> found = step();
        const std::lock_guard lock(m_lock);
        std::move(found.begin(), found.end(), std::back_inserter(m_findings));
    });
}

std::vector<Finding> StepGroup::collect()
{
    for (std::jthread& thread : m_threads)
        thread.join();
    m_threads.clear();
    return std::move(m_findings);
}

} // namespace orlen

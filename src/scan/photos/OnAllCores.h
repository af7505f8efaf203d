#pragma once

#include "platform/process/Threads.h"

#include <algorithm>
#include <atomic>
#include <cstddef>

namespace orlen {

/// Calls the task with 0 to `count` - 1 on all cores, in no order, and returns when all calls have.
template <typename Task>
void onAllCores(std::size_t count, const Task& task)
{
    std::atomic<std::size_t> next{0};
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    Threads::runOn("orlen-photo", std::min(count, cores), [&](std::size_t) {
        for (std::size_t i = next++; i < count; i = next++)
            task(i);
    });
}

} // namespace orlen

#pragma once

#include "platform/ThreadName.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <system_error>
#include <thread>
#include <vector>

namespace orlen {

/// Calls the task with 0 to `count` - 1 on all cores, in no order, and returns when all calls have.
template <typename Task>
void onAllCores(std::size_t count, const Task& task)
{
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++)
            task(i);
    };
    // The calling thread takes part, so that the work gets done even where no thread can be started.
    std::vector<std::jthread> threads;
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t i = 1; i < std::min(count, cores); ++i) {
        try {
            threads.emplace_back([&work] {
                nameThisThread("orlen-photo");
                work();
            });
        } catch (const std::system_error&) {
            break;
        }
    }
    work();
}

} // namespace orlen

#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <stop_token>
#include <thread>

/// Starts threads without ending the program if a limit on processes or memory prevents it. Any thread.
namespace orlen::Threads {

/// Starts a thread of this name (at most 15 bytes); nothing if the system refuses, and `work` is then not
/// called.
[[nodiscard]] std::optional<std::jthread> start(const char* name, std::function<void(std::stop_token)> work);

/// Calls `work` with 0 to `count` - 1 at the same time: 0 on the calling thread, the others on threads of
/// their own. Fewer calls are made if the system refuses threads. Returns when all calls have.
void runOn(const char* name, std::size_t count, const std::function<void(std::size_t)>& work);

} // namespace orlen::Threads

#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <stop_token>
#include <thread>

/// Threads that may not be had: a limit of processes or of memory must not end the program. Any thread.
namespace orlen::Threads {

/// Starts a thread of this name (15 bytes at most); nothing when the system gives none, and `work` is then
/// not called.
[[nodiscard]] std::optional<std::jthread> start(const char* name, std::function<void(std::stop_token)> work);

/// Calls `work` at most `count` times at once: with 0 on the calling thread, with 1 to `count` - 1 on threads
/// of their own, of which there are fewer when the system gives fewer. Returns when all calls have.
void runOn(const char* name, std::size_t count, const std::function<void(std::size_t)>& work);

} // namespace orlen::Threads

#pragma once

#include <chrono>
#include <cstddef>

/// Limits for a process that reads untrusted data.
namespace orlen::ProcessLimits {

struct Limits {
    std::size_t memory = 0;                ///< bytes of address space; 0: unlimited
    std::chrono::seconds processorTime{0}; ///< total for the process; ends it
};

/// Applies the limits, and forbids growing files, core dumps and gaining privileges by exec. Whether all of
/// it is in force.
[[nodiscard]] bool apply(const Limits& limits);

/// From now on no other process of this user can inspect this one.
void hideMemory();

/// Ends the process as soon as the other end of a socket is closed, whatever it is doing. Starts a thread.
void endWithOther(int socket);

/// Ends the process after that time. A new call replaces the last; 0 cancels.
void endAfter(std::chrono::seconds time);

} // namespace orlen::ProcessLimits

#pragma once

#include <chrono>
#include <cstddef>

/// What a process that reads untrusted data allows itself.
namespace orlen::ProcessLimits {

struct Limits {
    std::size_t memory = 0;                ///< bytes of address space; 0: without limit
    std::chrono::seconds processorTime{0}; ///< over all its life; ends the process
};

/// From now on: the limits, no growing file, no core file, no more rights by starting another program.
/// Whether all of it holds.
[[nodiscard]] bool apply(const Limits& limits);

/// From now on no other process of this user can look into this one.
void hideMemory();

/// Ends the process as soon as nobody holds the other end of a socket, whatever it is doing. Starts a thread.
void endWithOther(int socket);

/// Ends the process when that much time has passed; a new call replaces the last, 0 takes it back.
void endAfter(std::chrono::seconds time);

} // namespace orlen::ProcessLimits

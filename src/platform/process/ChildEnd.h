#pragma once

#include "platform/files/UniqueFd.h"

#include <chrono>
#include <optional>
#include <sys/types.h>

/// Reaps child processes, so that none is left behind as a zombie. Any thread.
namespace orlen::ChildEnd {

/// How long to wait for a killed process: it ends at once or hangs where no signal reaches it.
inline constexpr std::chrono::milliseconds kKilledPatience{200};

/// A descriptor that becomes readable when the process has ended.
[[nodiscard]] UniqueFd descriptorOf(pid_t child);

/// Waits as long as it takes. Returns the wait status; nothing if this process ignores SIGCHLD and so is
/// never told.
std::optional<int> await(pid_t child);

/// Returns at once; a thread does the waiting. False if no thread can be started: the zombie then stays until
/// this process ends.
bool awaitAside(pid_t child);

/// For a process that was just killed: waits briefly, and leaves one that still hangs to a thread.
void awaitKilled(pid_t child);

} // namespace orlen::ChildEnd

#pragma once

#include "platform/files/UniqueFd.h"

#include <chrono>
#include <optional>
#include <sys/types.h>

/// Takes note of the ends of processes that this one has started, so that none stays behind as a name without
/// a life. Any thread.
namespace orlen::ChildEnd {

/// How long a killed process is waited for: it ends at once, or hangs where not even a signal reaches it.
inline constexpr std::chrono::milliseconds kKilledPatience{200};

/// A descriptor that is readable when the process has ended.
[[nodiscard]] UniqueFd descriptorOf(pid_t child);

/// Waits as long as it takes. The wait status; nothing when this process was told to leave its children alone
/// and so never hears of it.
std::optional<int> await(pid_t child);

/// Returns at once: a thread waits instead. False when there is none to be had; the entry then stays until
/// this process ends.
bool awaitAside(pid_t child);

/// For a process that has just been killed: waits for a moment, and aside for what then still hangs.
void awaitKilled(pid_t child);

} // namespace orlen::ChildEnd

#pragma once

#include "platform/process/ChildProcess.h"

#include <optional>
#include <sys/types.h>

/// Starts a process that inherits nothing: no descriptors but those given, no signal settings, and a process
/// group of its own. Any thread.
namespace orlen::ProcessStart {

enum class Belonging { ownGroup, ownSession };

/// Descriptors for standard input or output, at most one of them; -1: empty or discarded. Standard error is
/// discarded.
struct Streams {
    int input = -1;
    int output = -1;
};

/// The new process's id, which the caller must wait for; nothing if it cannot be started. Ignores the time
/// limit of the call.
[[nodiscard]] std::optional<pid_t> start(const ChildProcess::Call& call, Belonging belonging,
                                         const Streams& streams);

} // namespace orlen::ProcessStart

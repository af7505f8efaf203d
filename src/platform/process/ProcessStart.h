#pragma once

#include "platform/process/ChildProcess.h"

#include <optional>
#include <sys/types.h>

/// Starts a process that has nothing of this one but what it is given: no descriptors, no signal settings, a
/// group of its own. Any thread.
namespace orlen::ProcessStart {

enum class Belonging { ownGroup, ownSession };

/// Descriptors that become standard input or output, one of them at most; -1: empty, and dropped. Standard
/// error is dropped.
struct Streams {
    int input = -1;
    int output = -1;
};

/// The number of the new process, whose end the caller has to wait for. Nothing when it cannot be started.
/// The limit of the call is not looked at.
[[nodiscard]] std::optional<pid_t> start(const ChildProcess::Call& call, Belonging belonging,
                                         const Streams& streams);

} // namespace orlen::ProcessStart

#pragma once

#include <string>
#include <vector>

namespace orlen {

/// What another program said. For tests beside programs that the machine may or may not have.
struct CommandOutcome {
    int status = -1; ///< exit status; -1: could not be started or was killed
    std::string output;
};

/// Runs a program found in PATH and waits for it, at most half a minute. What it writes to standard error is
/// dropped.
[[nodiscard]] CommandOutcome runCommand(const std::vector<std::string>& arguments,
                                        const std::string& input = {});
[[nodiscard]] bool hasCommand(const std::string& name);

} // namespace orlen

#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Runs another program for its output, with an argument vector and no shell. Blocks until it has ended or
/// timed out; any thread.
namespace orlen::ChildProcess {

/// The environment of the new process.
enum class Variables {
    added, ///< this process's, with the given ones added or replaced
    given, ///< only the given ones
};

struct Call {
    /// The program, absolute or found in PATH, and its arguments.
    std::vector<std::string> arguments;
    std::vector<std::string> environment; ///< "NAME=value"
    std::chrono::milliseconds limit{5000};
    Variables variables = Variables::added;
};

struct Outcome {
    int status = 0;     ///< exit status
    std::string output; ///< standard output, valid UTF-8
};

/// A program that writes more than this is killed; bytes.
inline constexpr std::size_t kOutputLimit = 8UL * 1024 * 1024;

/// Standard input is empty and standard error is discarded. Nothing if the program cannot be started, is
/// ended by a signal, exceeds a limit (then its process group is killed), or its output is not UTF-8.
/// Processes it left running in the background are neither waited for nor killed.
[[nodiscard]] std::optional<Outcome> run(const Call& call);

/// Starts a program in its own session and leaves it running. Whether it could be started.
bool startDetached(const std::vector<std::string>& arguments);

/// Resolves a program name: itself if it contains a slash, else the first match in the absolute folders of
/// PATH. Empty if the user may execute none.
[[nodiscard]] std::string programPath(const std::string& name);

} // namespace orlen::ChildProcess

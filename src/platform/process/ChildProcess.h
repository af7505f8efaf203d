#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// Runs another program for its output: by argument vector, never through a shell. Blocks until it has ended
/// or the time is over; any thread.
namespace orlen::ChildProcess {

/// What the new process finds in its environment.
enum class Variables {
    added, ///< this process's, and those that are given beside or in place of them
    given, ///< those that are given and no other
};

struct Call {
    /// The program, absolute or looked for in PATH, and its arguments.
    std::vector<std::string> arguments;
    std::vector<std::string> environment; ///< "NAME=value"
    std::chrono::milliseconds limit{5000};
    Variables variables = Variables::added;
};

struct Outcome {
    int status = 0;     ///< exit status
    std::string output; ///< standard output, valid UTF-8
};

/// More output than this ends the program, in bytes.
inline constexpr std::size_t kOutputLimit = 8UL * 1024 * 1024;

/// Standard input is empty and standard error is dropped. Nothing when the program cannot be started, is
/// ended by a signal or by the limits (it is killed then, with the processes of its group), or its output is
/// not UTF-8. What the program itself started and left running is neither waited for nor ended.
[[nodiscard]] std::optional<Outcome> run(const Call& call);

/// Starts a program and lets it run by itself, in its own session. Whether it could be started.
bool startDetached(const std::vector<std::string>& arguments);

/// The file that a name stands for: itself with a slash in it, else the first of that name in the absolute
/// folders of PATH. Empty when there is none that the user may execute.
[[nodiscard]] std::string programPath(const std::string& name);

} // namespace orlen::ChildProcess

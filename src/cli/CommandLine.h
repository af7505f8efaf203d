#pragma once

/// What the program does when it is called from a terminal or script.
namespace orlen::CommandLine {

/// Runs the command that the arguments name and returns the exit status. Main thread, with the application
/// object made.
[[nodiscard]] int run(int argc, char** argv);

} // namespace orlen::CommandLine

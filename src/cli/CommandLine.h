#pragma once

/// The program as run from a terminal or script.
namespace orlen::CommandLine {

/// Runs the command named by the arguments and returns the exit status. Main thread; needs the application
/// object.
[[nodiscard]] int run(int argc, char** argv);

} // namespace orlen::CommandLine

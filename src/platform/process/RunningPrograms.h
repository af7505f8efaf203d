#pragma once

#include <string>
#include <vector>

/// Which programs run, as the system's process table tells. Any thread.
namespace orlen::RunningPrograms {

/// The executable files of this user's processes as absolute paths with all links resolved, sorted, each
/// once. Of a program whose file was replaced or removed since it started, the path that it had.
[[nodiscard]] std::vector<std::string> executables();

/// The one of this process; empty when the system does not tell.
[[nodiscard]] std::string ownExecutable();

} // namespace orlen::RunningPrograms

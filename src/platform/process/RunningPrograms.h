#pragma once

#include <string>
#include <vector>

/// Which programs are running, from the process table. Any thread.
namespace orlen::RunningPrograms {

/// The executables of this user's processes as absolute, resolved paths, sorted and without duplicates. If a
/// program's file was replaced or removed since it started, its original path.
[[nodiscard]] std::vector<std::string> executables();

/// The executable of this process; empty if the system does not say.
[[nodiscard]] std::string ownExecutable();

} // namespace orlen::RunningPrograms

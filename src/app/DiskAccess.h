#pragma once

#include <string>

namespace orlen {

struct Places;

/// Whether the program may read what it would scan. Main thread; a listing of three folders at most.
namespace DiskAccess {

/// A protected folder of the home folder decides when it exists. Otherwise access is granted unless a sandbox
/// withholds the home folder or the user's own folders cannot be listed; a missing folder counts as granted.
[[nodiscard]] bool isGranted(const Places& places);

/// The command that lets the program out of the sandbox it runs in; empty when it runs in none.
[[nodiscard]] std::string grantingCommand(const Places& places);

} // namespace DiskAccess
} // namespace orlen

#pragma once

#include <string>

namespace orlen {

struct Places;

/// Whether the program may read what it would scan. Main thread; lists at most three folders.
namespace DiskAccess {

/// If the home folder has a protected folder, that one decides. Otherwise access is granted unless a sandbox
/// hides the home folder or the user's own folders cannot be listed; a missing folder counts as readable.
[[nodiscard]] bool isGranted(const Places& places);

/// The command that gives the sandboxed program access to the home folder; empty outside a sandbox.
[[nodiscard]] std::string grantingCommand(const Places& places);

} // namespace DiskAccess
} // namespace orlen

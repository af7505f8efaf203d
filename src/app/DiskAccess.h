#pragma once

namespace orlen {

struct Places;

/// Whether the program may read what it would scan. Main thread; a listing of three folders at most.
namespace DiskAccess {

/// A protected folder of the home folder decides when it exists. Otherwise access is granted unless a sandbox
/// withholds the home folder or the user's own folders cannot be listed; a missing folder counts as granted.
[[nodiscard]] bool isGranted(const Places& places);

} // namespace DiskAccess
} // namespace orlen

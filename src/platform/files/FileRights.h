#pragma once

/// Gives up the right to touch files by name. Open descriptors keep working.
namespace orlen::FileRights {

enum class Exception {
    none,
    processTable, ///< reading below /proc stays allowed
};

/// From now on this thread, and any it starts, cannot open, run, create, rename or remove files, use TCP, or
/// signal other processes, as far as this system's Landlock supports it. Returns the Landlock version; 0:
/// nothing is enforced.
[[nodiscard]] int giveUp(Exception exception = Exception::none);

} // namespace orlen::FileRights

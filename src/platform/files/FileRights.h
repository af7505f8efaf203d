#pragma once

/// Giving up the right to touch files by name. Descriptors that are open stay as they are.
namespace orlen::FileRights {

enum class Exception {
    none,
    processTable, ///< reading below /proc stays allowed
};

/// From now on this thread, and each that it starts, can open, run, make, rename or remove nothing, cannot
/// use TCP, and cannot signal other processes, each as far as this system's Landlock goes. Back comes the
/// version of its Landlock; 0: nothing holds.
[[nodiscard]] int giveUp(Exception exception = Exception::none);

} // namespace orlen::FileRights

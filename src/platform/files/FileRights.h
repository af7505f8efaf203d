#pragma once

/// Gives up the right to touch files by name. Open descriptors keep working.
namespace orlen::FileRights {

/// What can still be read.
struct Exceptions {
    bool processTable = false; ///< below /proc
    bool fonts = false;        ///< of the system, and what Poppler knows of fonts that are in no document
};

/// From now on this thread, and any it starts, cannot open, run, create, rename or remove files, use TCP, or
/// signal other processes, as far as this system's Landlock supports it. Returns the Landlock version; 0:
/// nothing is enforced.
[[nodiscard]] int giveUp(const Exceptions& exceptions = {});

} // namespace orlen::FileRights

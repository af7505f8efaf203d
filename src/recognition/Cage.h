#pragma once

#include "platform/images/CageReport.h"

/// What a recognizer gives up before it reads the first byte of a picture: pictures are untrusted, and
/// whoever takes over a decoder should find nothing to do there.
namespace orlen::Cage {

/// Locks this process in as far as the system allows; once, while it has one thread, after all files that are
/// ever needed were opened. Back comes the version of the system's Landlock, 0 when files stay within reach.
int lock();

/// Tries to get out. What was possible leaves no trace.
[[nodiscard]] CageReport tried(int landlock);

} // namespace orlen::Cage

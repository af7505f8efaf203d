#pragma once

#include "platform/images/CageReport.h"
#include "platform/images/RecognizerRole.h"

/// What a recognizer gives up before it reads the first byte of an untrusted picture, so that whoever takes
/// over a decoder finds nothing to do.
namespace orlen::Cage {

/// Locks this process in as far as the system allows. Call once, while there is one thread, after opening
/// every file that will be needed. Who draws pages may read fonts, if Landlock keeps all else closed. Returns
/// the version of the system's Landlock; 0 if files stay accessible.
int lock(RecognizerRole role);

/// Tries to break out. Whatever succeeds leaves no trace.
[[nodiscard]] CageReport tried(int landlock);

} // namespace orlen::Cage

#pragma once

#include "clean/Exclusions.h"

namespace orlen {

class Session;

/// For commands that ask what is excluded without an application model.
namespace SavedExclusions {

/// What the file holds. Complains about a file that cannot be read or is damaged. Main thread; blocks on the
/// disk.
[[nodiscard]] Exclusions load(Session& session);

} // namespace SavedExclusions
} // namespace orlen

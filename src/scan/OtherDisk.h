#pragma once

#include "model/Finding.h"

#include <vector>

namespace orlen {

/// Adds a note to entries on a different disk than the home folder: that disk gains the space. Reads the
/// mount table; any thread.
void noteOtherDisks(std::vector<Finding>& findings);

} // namespace orlen

#pragma once

#include "model/Finding.h"

#include <vector>

namespace orlen {

/// Notes on entries that lie on another disk than the home folder: what they free is freed there. Reads the
/// mount table; any thread.
void noteOtherDisks(std::vector<Finding>& findings);

} // namespace orlen

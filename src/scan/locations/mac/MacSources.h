#pragma once

#include "scan/locations/SourceTable.h"

#include <vector>

namespace orlen {

/// The known places of macOS, for a home folder that comes from a Mac or is shared with one.
[[nodiscard]] std::vector<SourceRow> macSources();

} // namespace orlen

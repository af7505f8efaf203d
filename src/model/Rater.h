#pragma once

#include "model/Finding.h"

#include <string_view>
#include <vector>

/// Rates findings: each finding by a table of kinds, single entries by known places, important-looking names
/// and installers. Never touches the disk; any thread.
namespace orlen::Rater {

/// The same findings in the same order, rated.
[[nodiscard]] std::vector<Finding> rate(std::vector<Finding> findings);

/// Whether a file name (with its extension) suggests an important personal document.
[[nodiscard]] bool isSensitiveName(std::string_view name);

} // namespace orlen::Rater

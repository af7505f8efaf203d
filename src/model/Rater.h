#pragma once

#include "model/Finding.h"

#include <string_view>
#include <vector>

/// Turns raw findings into rated ones: rating and reason of each finding from a table by kind, rating and
/// note of single entries from known locations, important-looking names and installers. Never touches the
/// disk; any thread.
namespace orlen::Rater {

/// The same findings in the same order, rated.
[[nodiscard]] std::vector<Finding> rate(std::vector<Finding> findings);

/// Whether a file name (with its extension) suggests an important personal document.
[[nodiscard]] bool isSensitiveName(std::string_view name);

} // namespace orlen::Rater

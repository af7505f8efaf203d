#pragma once

#include "cli/Table.h"
#include "model/Finding.h"

#include <cstddef>
#include <vector>

/// Findings as a table: titles, sizes and the largest entries.
namespace orlen::FindingTable {

/// Lists at most `entries` entries per finding and says how many more there are.
[[nodiscard]] Table of(const std::vector<Finding>& findings, std::size_t entries);

[[nodiscard]] Style style(Rating rating);

} // namespace orlen::FindingTable

#pragma once

#include "cli/Table.h"
#include "model/Finding.h"

#include <cstddef>
#include <vector>

/// Findings for a reader: what they are, how much, and their largest entries.
namespace orlen::FindingTable {

/// At most `entries` of each finding; those left out are counted.
[[nodiscard]] Table of(const std::vector<Finding>& findings, std::size_t entries);

[[nodiscard]] Style style(Rating rating);

} // namespace orlen::FindingTable

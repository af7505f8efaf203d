#pragma once

#include "PhotoFolder.h"

#include <string>
#include <vector>

/// How well feature prints tell copies from other pictures.
namespace orlen::PrintMetrics {

/// Writes a table for people to the standard output.
void report(const std::string& folder, const std::vector<PhotoFolder::Photo>& photos);

} // namespace orlen::PrintMetrics

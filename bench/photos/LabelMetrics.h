#pragma once

#include "PhotoFolder.h"

#include <string>
#include <vector>

/// How well the classifier's labels put pictures into the findings of the photo analysis.
namespace orlen::LabelMetrics {

/// Writes a table for people to the standard output.
void report(const std::string& folder, const std::vector<PhotoFolder::Photo>& photos);

} // namespace orlen::LabelMetrics

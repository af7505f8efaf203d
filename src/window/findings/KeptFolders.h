#pragma once

#include "app/Results.h"

#include <string>

/// The folders of the rule by which of each set one file is kept. Main thread.
namespace orlen::KeptFolders {

/// Keeps the files in this folder rather than others.
void prefer(Results& results, const std::string& folder);
/// Whether no set offers a file in this folder.
[[nodiscard]] bool isAlways(const Results& results, const std::string& folder);
void setAlways(Results& results, const std::string& folder, bool isKept);

} // namespace orlen::KeptFolders

#pragma once

#include "insight/AskEngine.h"

#include <optional>
#include <string>
#include <vector>

/// What is in the home folder by name though no finding lists it. Blocks on the disk; not on the main thread.
namespace orlen::AskReader {

/// Each file or folder in a line or two: its size, what the scan lists in it, and whether it is protected.
[[nodiscard]] Answer aboutSeen(const std::vector<SeenName>& seen, const AskContext& context);

/// What has this name, or is at this path; none if nobody may look.
[[nodiscard]] std::vector<SeenName> seenNamed(const std::string& name, const AskContext& context);

} // namespace orlen::AskReader

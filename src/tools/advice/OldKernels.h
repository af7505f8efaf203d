#pragma once

#include "tools/advice/AdviceTopics.h"

namespace orlen::OldKernels {

/// Kernels that are installed beside the running one, each with its modules and its files in "/boot".
/// Blocks on the disk.
[[nodiscard]] AdviceFound find(const Places& places);

} // namespace orlen::OldKernels

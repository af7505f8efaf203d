#pragma once

#include "platform/images/FeaturePrint.h"

namespace orlen {

/// How different two pictures look: 0 for the same picture; below 0.32 they are near-duplicates. Symmetric.
/// The fine stage runs only where the coarse one leaves the question open. Pure; any thread.
[[nodiscard]] float distance(const FeaturePrint& one, const FeaturePrint& other);

} // namespace orlen

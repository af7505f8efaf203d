#pragma once

#include "insight/Predictor.h"
#include "model/Finding.h"
#include "scan/StorageBreakdown.h"

#include <vector>

namespace orlen {

/// Everything an answer may be based on.
struct AskContext {
    std::vector<Finding> findings; ///< of the last scan, in display order; empty before the first
    StorageBreakdown breakdown;
    Prediction prediction;
};

} // namespace orlen

#pragma once

#include "clean/CleanRecord.h"
#include "clean/FolderReading.h"
#include "clean/Protection.h"
#include "insight/Predictor.h"
#include "model/Finding.h"
#include "platform/values/Time.h"
#include "scan/StorageBreakdown.h"

#include <functional>
#include <string_view>
#include <vector>

namespace orlen {

/// Everything an answer may be based on.
struct AskContext {
    std::vector<Finding> findings; ///< of the last scan, in display order; empty before the first
    StorageBreakdown breakdown;
    Prediction prediction;
    std::vector<CleanRecord> history; ///< past clean-ups, newest first
    TimePoint now;                    ///< when the question is asked
    /// Which rule protects a path, without touching the disk; empty if nobody knows. Any thread.
    std::function<Protection(std::string_view)> protection;
    std::vector<FolderReading> folders; ///< what folders held at the end of past scans, oldest first
};

} // namespace orlen

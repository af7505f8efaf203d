#pragma once

#include "platform/values/Time.h"
#include "platform/values/Uuid.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// One item that was moved to the Trash. Identified by `original`.
struct TrashedItem {
    std::string original;  ///< where it was
    std::string trashed;   ///< where it lies in the Trash; empty: not reported
    std::int64_t size = 0; ///< bytes at the time of the move
    bool restored = false;

    friend bool operator==(const TrashedItem&, const TrashedItem&) = default;
};

/// One clean-up as the history keeps it.
struct CleanRecord {
    Uuid id;
    TimePoint date; ///< when the clean-up finished
    std::string title;
    std::vector<TrashedItem> items; ///< in the order in which they were moved
    int failed = 0;                 ///< selected items that could not be moved

    /// Bytes of all items, restored or not.
    [[nodiscard]] std::int64_t freed() const;

    friend bool operator==(const CleanRecord&, const CleanRecord&) = default;
};

} // namespace orlen

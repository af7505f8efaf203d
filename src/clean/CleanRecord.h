#pragma once

#include "platform/values/Time.h"
#include "platform/values/Uuid.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// One item moved to the Trash. Identified by `original`.
struct TrashedItem {
    std::string original;  ///< where it was
    std::string trashed;   ///< where it is in the Trash; empty if unknown
    std::int64_t size = 0; ///< bytes when it was moved
    bool restored = false;

    friend bool operator==(const TrashedItem&, const TrashedItem&) = default;
};

/// One clean-up in the history.
struct CleanRecord {
    Uuid id;
    TimePoint date; ///< when the clean-up finished
    std::string title;
    std::vector<TrashedItem> items; ///< in the order they were moved
    int failed = 0;                 ///< selected items that could not be moved

    /// Bytes of all items, including restored ones.
    [[nodiscard]] std::int64_t freed() const;

    friend bool operator==(const CleanRecord&, const CleanRecord&) = default;
};

} // namespace orlen

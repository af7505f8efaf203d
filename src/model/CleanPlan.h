#pragma once

#include "model/CopySets.h"
#include "model/FileEntry.h"
#include "model/Message.h"
#include "platform/values/Uuid.h"

#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// One section of a clean-up plan, identified by `id` (a finding's kind, or a name of the tool that made it).
struct PlanSection {
    std::string id;
    Message title;
    std::string symbol; ///< icon name
    std::vector<FileEntry> entries;
    std::optional<Rating> rating; ///< of entries without one of their own; absent: they are not rated

    friend bool operator==(const PlanSection&, const PlanSection&) = default;
};

/// What a clean-up will move to the Trash.
struct CleanPlan {
    Uuid id = Uuid::random();
    Message title; ///< heading of the plan, recorded as the title of the clean-up, in English
    std::vector<PlanSection> sections;
    /// Those of which the plan moves something.
    std::vector<CopySet> sets;

    friend bool operator==(const CleanPlan&, const CleanPlan&) = default;
};

} // namespace orlen

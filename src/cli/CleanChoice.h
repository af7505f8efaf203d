#pragma once

#include "model/CleanPlan.h"
#include "model/Finding.h"

#include <set>
#include <string>
#include <vector>

namespace orlen {

/// Which entries of a scan `orlen clean` is to move.
struct CleanChoice {
    std::vector<std::string> kinds; ///< raw values; only entries of these kinds, of all kinds when empty
    bool allOfKinds = false;        ///< not only the pre-selected ones, but all that are not rated Keep
    std::vector<std::string> paths; ///< exactly these entries, whatever their rating

    struct Result {
        std::set<std::string> paths;
        std::string objection; ///< what is wrong with the choice; then nothing may move
    };
    /// Applies the choice to the findings and what the scan pre-selected.
    [[nodiscard]] Result apply(const std::vector<Finding>& findings,
                               const std::set<std::string>& preselected) const;

    /// The plan without the sections of kinds that were not asked for: a path may lie in several findings.
    [[nodiscard]] CleanPlan limited(CleanPlan plan) const;

private:
    [[nodiscard]] bool isWanted(std::string_view kind) const;
    [[nodiscard]] Result exactPaths(const std::vector<Finding>& findings) const;
};

} // namespace orlen

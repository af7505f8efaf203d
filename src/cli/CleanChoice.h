#pragma once

#include "clean/Exclusions.h"
#include "model/CleanPlan.h"
#include "model/Finding.h"
#include "model/Message.h"

#include <set>
#include <string>
#include <vector>

namespace orlen {

/// Which entries of a scan `orlen clean` moves.
struct CleanChoice {
    std::vector<std::string> kinds; ///< raw values of the kinds to take; empty for all kinds
    bool allOfKinds = false;        ///< everything not rated Keep, not just what is pre-selected
    std::vector<std::string> paths; ///< exactly these entries, whatever their rating

    struct Result {
        std::set<std::string> paths;
        Message objection; ///< what is wrong with the choice; if set, nothing may move
    };
    /// Applies the choice to the findings and to what the scan pre-selected. The findings are already without
    /// what `exclusions` lists.
    [[nodiscard]] Result apply(const std::vector<Finding>& findings, const std::set<std::string>& preselected,
                               const Exclusions& exclusions = {}) const;

    /// The plan without sections of other kinds, since one path can be in several findings.
    [[nodiscard]] CleanPlan limited(CleanPlan plan) const;

private:
    [[nodiscard]] bool isWanted(std::string_view kind) const;
    [[nodiscard]] Result exactPaths(const std::vector<Finding>& findings, const Exclusions& exclusions) const;
};

} // namespace orlen

#pragma once

#include "clean/CleanRecord.h"
#include "cli/Confirmation.h"
#include "cli/ItemList.h"
#include "cli/Session.h"
#include "model/ModelState.h"

namespace orlen {

class AppModel;

/// Carries a plan out: the full list, the question, the clean-up, the outcome. One way for every command that
/// moves something.
struct PlanCarrier {
    Confirmation::Asking asking = Confirmation::Asking::onTerminal;
    /// With a document that is what standard output gets, and everything else goes to standard error.
    ItemList::Beside beside = ItemList::Beside::nothing;

    [[nodiscard]] ExitStatus carryOut(Session& session, AppModel& model, const CleanPlan& plan) const;

    struct Outcome {
        CleanRecord record;
        CleaningState end; ///< as the model showed it last
    };

private:
    void printOutcome(Session& session, const CleanPlan& plan, const Outcome& carriedOut) const;
};

} // namespace orlen

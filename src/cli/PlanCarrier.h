#pragma once

#include "clean/CleanRecord.h"
#include "cli/Confirmation.h"
#include "cli/ItemList.h"
#include "cli/Session.h"
#include "model/ModelState.h"

namespace orlen {

class AppModel;

/// Carries out a plan: shows the full list, asks, cleans up and reports. Every command that moves files to
/// the Trash goes through here.
struct PlanCarrier {
    Confirmation::Asking asking = Confirmation::Asking::onTerminal;
    /// If a document is printed, it goes to standard output and everything else to standard error.
    ItemList::Beside beside = ItemList::Beside::nothing;

    [[nodiscard]] ExitStatus carryOut(Session& session, AppModel& model, const CleanPlan& plan) const;

    struct Outcome {
        CleanRecord record;
        CleaningState end; ///< the model's last state
    };

private:
    void printOutcome(Session& session, const CleanPlan& plan, const Outcome& carriedOut) const;
};

} // namespace orlen

#pragma once

#include "cli/ItemList.h"
#include "cli/Session.h"
#include "model/CleanPlan.h"

namespace CLI {
class App;
}

namespace orlen {

class AppModel;

/// Carries out a plan: shows the full list, asks, cleans up and reports. Every command that moves files to
/// the Trash goes through here.
class PlanCarrier {
public:
    /// Adds `--dry-run` and `--yes`.
    void addOptions(CLI::App& app);

    /// Whether the model can record a clean-up, or need not because of `--dry-run`.
    [[nodiscard]] bool isReady(const AppModel& model) const;

    /// If a document is printed, it goes to standard output and everything else to standard error.
    [[nodiscard]] ExitStatus carryOut(Session& session, AppModel& model, const CleanPlan& plan,
                                      ItemList::Beside beside) const;

private:
    bool m_isDryRun = false;
    bool m_isConfirmed = false;
};

} // namespace orlen

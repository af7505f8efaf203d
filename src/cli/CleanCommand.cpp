#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/CleanChoice.h"
#include "cli/Command.h"
#include "cli/PlanCarrier.h"
#include "cli/SmartScan.h"
#include "cli/Texts.h"

#include <CLI/CLI.hpp>

namespace orlen {

namespace {

std::string checkedKind(const std::string& raw)
{
    const auto kind = kindFromRaw(raw);
    if (!kind)
        return "there is no kind " + Format::quoted(raw);
    return Finding(*kind, {}).cleanable ? std::string() : std::string(Texts::kTrashIsKept);
}

class CleanCommand final : public Command {
public:
    CleanCommand()
        : Command({"clean", "Run a Smart Scan, show what is selected, and move it to the Trash after a yes"})
    {
    }

    void addOptions(CLI::App& app) override
    {
        SmartScan::addThresholdOption(app, m_thresholdMB);
        auto* kind =
            app.add_option("--kind", m_choice.kinds, "Of the selected entries only those of this kind")
                ->type_name("KIND")
                ->allow_extra_args(false)
                ->check(checkedKind);
        auto* all =
            app.add_flag("--all", m_choice.allOfKinds, "Every entry of these kinds except those rated Keep")
                ->needs(kind);
        app.add_option("--path", m_choice.paths, "Exactly this entry of the scan, whatever its rating")
            ->type_name("PATH")
            ->allow_extra_args(false)
            ->excludes(kind)
            ->excludes(all);
        m_carrier.addOptions(app);
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly, AppModel::Access::writer, {}});
        if (!m_carrier.isReady(model))
            return session.refuse(Texts::kOtherWriter);
        if (!SmartScan::run(session, model, m_thresholdMB))
            return ExitStatus::interrupted;
        CleanChoice::Result chosen = m_choice.apply(model.results()->findings(), model.results()->selection(),
                                                    model.exclusions()->current());
        if (!chosen.objection.empty())
            return session.refuse(chosen.objection);
        model.results()->setSelection(std::move(chosen.paths));
        const CleanPlan plan = m_choice.limited(model.results()->scanPlan());
        return m_carrier.carryOut(session, model, plan,
                                  wantsJson() ? ItemList::Beside::document : ItemList::Beside::nothing);
    }

private:
    double m_thresholdMB = 500;
    CleanChoice m_choice;
    PlanCarrier m_carrier;
};

} // namespace

std::unique_ptr<Command> makeCleanCommand()
{
    return std::make_unique<CleanCommand>();
}

} // namespace orlen

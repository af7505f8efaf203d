#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/CleanChoice.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/PlanCarrier.h"
#include "cli/SmartScan.h"
#include "model/Words.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace orlen {

namespace {

std::string checkedKind(const std::string& raw)
{
    const auto kind = kindFromRaw(raw);
    if (!kind)
        return shown(Message{CliTexts::kNoKind, {{"word", Format::quoted(raw)}}});
    return Finding(*kind, {}).cleanable ? std::string() : shown(CliTexts::kTrashIsKept);
}

class CleanCommand final : public Command {
public:
    CleanCommand() : Command({"clean", CliTexts::kCleanSummary}) {}

    void addOptions(CLI::App& app) override
    {
        SmartScan::addThresholdOption(app, m_thresholdMB);
        auto* kind = app.add_option("--kind", m_choice.kinds, shown(CliTexts::kKindHelp))
                         ->type_name("KIND")
                         ->allow_extra_args(false)
                         ->check(checkedKind);
        auto* all = app.add_flag("--all", m_choice.allOfKinds, shown(CliTexts::kAllHelp))->needs(kind);
        app.add_option("--path", m_choice.paths, shown(CliTexts::kEntryHelp))
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
            return session.refuse(CliTexts::kOtherWriter);
        if (!SmartScan::run(session, model, m_thresholdMB))
            return ExitStatus::interrupted;
        CleanChoice::Result chosen = m_choice.apply(model.results()->findings(), model.results()->selection(),
                                                    model.exclusions()->current());
        if (!chosen.objection.empty())
            return session.refuse(chosen.objection);
        model.results()->setSelection(chosen.paths);
        const auto left = std::ranges::count_if(chosen.paths, [&](const std::string& path) {
            return !model.results()->selection().contains(path);
        });
        if (left > 0)
            session.complain({CliTexts::kKeptStay, {{"count", left}}});
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

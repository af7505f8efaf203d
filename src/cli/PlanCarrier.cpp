#include "cli/PlanCarrier.h"

#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "clean/CleanRecord.h"
#include "clean/Persist.h"
#include "clean/trash/Trash.h"
#include "cli/CliTexts.h"
#include "cli/Confirmation.h"
#include "cli/FailureList.h"
#include "cli/JsonDocuments.h"
#include "model/ModelState.h"
#include "model/Words.h"
#include "platform/text/PathText.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace orlen {

namespace {

struct Outcome {
    CleanRecord record;
    CleaningState end; ///< the model's last state
};

Message status(const AppModel& model)
{
    if (!model.cleanUps()->cleaning())
        return {};
    const CleaningState& state = *model.cleanUps()->cleaning();
    return Message::joined({{CliTexts::kMoving, {{"done", state.done}, {"total", state.total}}},
                            Message::verbatim(PathText::forDisplay(state.current))},
                           Several::Joint::facts);
}

/// The clean-up itself. On Ctrl-C it finishes the current item; the record lists what was moved so far.
Outcome moved(Session& session, AppModel& model, const CleanPlan& plan)
{
    std::optional<CleanRecord> record;
    const auto heard = QObject::connect(model.cleanUps(), &CleanUps::cleaningFinished, &model,
                                        [&](const CleanRecord& finished) { record = finished; });
    model.cleanUps()->confirm(plan);
    session.run({[&] { return record.has_value(); }, [&] { model.cleanUps()->cancelCleaning(); },
                 [&] { return status(model); }, Session::Work::Nature::moving});
    QObject::disconnect(heard);
    // The model keeps the clean-up's state until it is dismissed.
    return {*std::move(record), *model.cleanUps()->cleaning()};
}

Message summary(const CleanRecord& record)
{
    std::vector<Message> lines{
        {CliTexts::kMoved, {{"count", std::ssize(record.items)}, {"size", Bytes{record.freed()}}}}};
    if (record.failed > 0)
        lines.push_back({CliTexts::kNotMoved, {{"count", record.failed}}});
    if (!record.items.empty())
        lines.emplace_back(CliTexts::kNothingDeleted);
    return Message::joined(std::move(lines), Several::Joint::lines);
}

void print(Session& session, const CleanPlan& plan, const Outcome& outcome, ItemList::Beside beside)
{
    if (beside == ItemList::Beside::document)
        Session::printDocument(JsonDocuments::clean(plan, outcome.record, outcome.end.failures));
    else if (plan.sections.empty())
        Session::print(CliTexts::kNothingToClean);
    else
        Session::print(summary(outcome.record));
    FailureList::show(session, outcome.end.failures, outcome.end.refusal, CliTexts::kNotBegun);
}

} // namespace

void PlanCarrier::addOptions(CLI::App& app)
{
    app.add_flag("--dry-run", m_isDryRun, shown(CliTexts::kDryRunHelp));
    app.add_flag("--yes", m_isConfirmed, shown(CliTexts::kMoveYesHelp));
}

bool PlanCarrier::isReady(const AppModel& model) const
{
    return m_isDryRun || model.isWriter();
}

ExitStatus PlanCarrier::carryOut(Session& session, AppModel& model, const CleanPlan& plan,
                                 ItemList::Beside beside) const
{
    if (m_isDryRun && beside == ItemList::Beside::document) {
        Session::printDocument(JsonDocuments::dryRun(plan));
        return ExitStatus::done;
    }
    const ItemList list = ItemList::toClean(plan, beside);
    if (m_isDryRun) {
        list.show(session);
        return ExitStatus::done;
    }
    if (list.isEmpty()) {
        print(session, plan,
              {{Uuid::random(), std::chrono::system_clock::now(), plan.title.base(), {}, 0}, {}}, beside);
        return ExitStatus::done;
    }
    list.show(session);
    if (!Trash::isReachable() || !Persist::isReachable())
        return session.refuse(AppTexts::kSilentTrash);
    const auto asking = m_isConfirmed ? Confirmation::Asking::unneeded : Confirmation::Asking::onTerminal;
    if (const auto refused = Confirmation::refusal(session, asking, list.summary(CliTexts::kMoveItems)))
        return *refused;
    const Outcome outcome = moved(session, model, plan);
    print(session, plan, outcome, beside);
    for (const std::string& service : outcome.end.servicesStillOn)
        session.complain(AppTexts::stillOn(PathText::forDisplay(service)));
    if (!outcome.end.isRecorded)
        session.complain(CliTexts::kNotRecorded);
    if (session.isInterrupted()) {
        session.complain(CliTexts::kCancelledCleaning);
        return ExitStatus::interrupted;
    }
    return outcome.record.failed > 0 || !outcome.end.isRecorded ? ExitStatus::someFailed : ExitStatus::done;
}

} // namespace orlen

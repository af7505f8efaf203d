#include "cli/PlanCarrier.h"

#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "app/Format.h"
#include "clean/CleanRecord.h"
#include "clean/Persist.h"
#include "clean/trash/Trash.h"
#include "cli/Confirmation.h"
#include "cli/FailureList.h"
#include "cli/JsonDocuments.h"
#include "cli/Texts.h"
#include "model/ModelState.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <optional>

namespace orlen {

namespace {

struct Outcome {
    CleanRecord record;
    CleaningState end; ///< the model's last state
};

std::string status(const AppModel& model)
{
    if (!model.cleanUps()->cleaning())
        return {};
    const CleaningState& state = *model.cleanUps()->cleaning();
    return std::string(Texts::kMoving) + ' ' + Format::grouped(state.done) + " of " +
           Format::grouped(state.total) + " · " + PathText::forDisplay(state.current);
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

std::string summary(const CleanRecord& record)
{
    std::string text = Format::counted(static_cast<std::int64_t>(record.items.size()), "item") + " (" +
                       byteCount(record.freed()) + ") moved to the Trash\n";
    if (record.failed > 0)
        text += Format::counted(record.failed, "item") + " couldn't be moved\n";
    if (!record.items.empty())
        text.append(Texts::kNothingDeleted).append("\n");
    return text;
}

void print(Session& session, const CleanPlan& plan, const Outcome& outcome, ItemList::Beside beside)
{
    if (beside == ItemList::Beside::document)
        Session::printDocument(JsonDocuments::clean(plan, outcome.record, outcome.end.failures));
    else if (plan.sections.empty())
        Session::print(std::string(Texts::kNothingToClean) + '\n');
    else
        Session::print(summary(outcome.record));
    FailureList::show(session, outcome.end.failures, outcome.end.refusal, Texts::kNotBegun);
}

} // namespace

void PlanCarrier::addOptions(CLI::App& app)
{
    app.add_flag("--dry-run", m_isDryRun, "Print the plan and move nothing");
    app.add_flag("--yes", m_isConfirmed, "Move without asking");
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
        print(session, plan, {{Uuid::random(), std::chrono::system_clock::now(), plan.title, {}, 0}, {}},
              beside);
        return ExitStatus::done;
    }
    list.show(session);
    if (!Trash::isReachable() || !Persist::isReachable())
        return session.refuse(AppTexts::kSilentTrash);
    const auto asking = m_isConfirmed ? Confirmation::Asking::unneeded : Confirmation::Asking::onTerminal;
    if (const auto refused =
            Confirmation::refusal(session, asking, "Move " + list.summary() + " to the Trash?"))
        return *refused;
    const Outcome outcome = moved(session, model, plan);
    print(session, plan, outcome, beside);
    for (const std::string& service : outcome.end.servicesStillOn)
        session.complain(AppTexts::stillOn(PathText::forDisplay(service)));
    if (!outcome.end.isRecorded)
        session.complain(Texts::kNotRecorded);
    if (session.isInterrupted()) {
        session.complain(Texts::kCancelledCleaning);
        return ExitStatus::interrupted;
    }
    return outcome.record.failed > 0 || !outcome.end.isRecorded ? ExitStatus::someFailed : ExitStatus::done;
}

} // namespace orlen

#include "cli/PlanCarrier.h"

#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "app/Format.h"
#include "clean/Persist.h"
#include "clean/trash/Trash.h"
#include "cli/FailureList.h"
#include "cli/JsonDocuments.h"
#include "cli/Texts.h"
#include "model/ByteCount.h"
#include "platform/text/PathText.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace orlen {

namespace {

std::string status(const AppModel& model)
{
    if (!model.cleanUps()->cleaning())
        return {};
    const CleaningState& state = *model.cleanUps()->cleaning();
    return std::string(Texts::kMoving) + ' ' + Format::grouped(state.done) + " of " +
           Format::grouped(state.total) + " · " + PathText::forDisplay(state.current);
}

/// The clean-up itself. On Ctrl-C it finishes the current item; the record lists what was moved so far.
PlanCarrier::Outcome moved(Session& session, AppModel& model, const CleanPlan& plan)
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

std::string outcome(const CleanRecord& record)
{
    std::string text = Format::counted(static_cast<std::int64_t>(record.items.size()), "item") + " (" +
                       byteCount(record.freed()) + ") moved to the Trash\n";
    if (record.failed > 0)
        text += Format::counted(record.failed, "item") + " couldn't be moved\n";
    if (!record.items.empty())
        text.append(Texts::kNothingDeleted).append("\n");
    return text;
}

} // namespace

ExitStatus PlanCarrier::carryOut(Session& session, AppModel& model, const CleanPlan& plan) const
{
    const ItemList list = ItemList::toClean(plan, beside);
    if (list.isEmpty()) {
        printOutcome(session, plan,
                     {{Uuid::random(), std::chrono::system_clock::now(), plan.title, {}, 0}, {}});
        return ExitStatus::done;
    }
    list.show(session);
    if (!Trash::isReachable() || !Persist::isReachable()) {
        session.complain(AppTexts::kSilentTrash);
        return ExitStatus::wrongCall;
    }
    if (const auto refused =
            Confirmation::refusal(session, asking, "Move " + list.summary() + " to the Trash?"))
        return *refused;
    const Outcome carriedOut = moved(session, model, plan);
    printOutcome(session, plan, carriedOut);
    if (!carriedOut.end.isRecorded)
        session.complain(Texts::kNotRecorded);
    if (session.isInterrupted()) {
        session.complain(Texts::kCancelledCleaning);
        return ExitStatus::interrupted;
    }
    return carriedOut.record.failed > 0 || !carriedOut.end.isRecorded ? ExitStatus::someFailed
                                                                      : ExitStatus::done;
}

void PlanCarrier::printOutcome(Session& session, const CleanPlan& plan, const Outcome& carriedOut) const
{
    if (beside == ItemList::Beside::document)
        Session::printDocument(JsonDocuments::clean(plan, carriedOut.record, carriedOut.end.failures));
    else if (plan.sections.empty())
        Session::print(std::string(Texts::kNothingToClean) + '\n');
    else
        Session::print(outcome(carriedOut.record));
    FailureList::show(session, carriedOut.end.failures, carriedOut.end.refusal, Texts::kNotBegun);
}

} // namespace orlen

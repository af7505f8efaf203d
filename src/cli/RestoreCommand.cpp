#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/Confirmation.h"
#include "cli/FailureList.h"
#include "cli/ItemList.h"
#include "cli/JsonDocuments.h"
#include "model/Words.h"
#include "platform/text/PathText.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>

namespace orlen {

namespace {

constexpr std::size_t kShortestId = 4;

/// The records whose ID starts with this, ignoring case.
std::vector<CleanRecord> matching(const std::vector<CleanRecord>& history, const std::string& id)
{
    std::vector<CleanRecord> records;
    if (id.size() < kShortestId)
        return records;
    std::copy_if(history.begin(), history.end(), std::back_inserter(records), [&](const CleanRecord& record) {
        return PathText::asciiLower(record.id.text()).starts_with(PathText::asciiLower(id));
    });
    return records;
}

class RestoreCommand final : public Command {
public:
    RestoreCommand() : Command({"restore", CliTexts::kRestoreSummary}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("ID", m_id, shown(CliTexts::kRecordHelp))->required();
        app.add_flag("--yes", m_isConfirmed, shown(CliTexts::kRestoreYesHelp));
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly});
        session.complain(model.notices());
        const std::vector<CleanRecord> records = matching(model.cleanUps()->history(), m_id);
        if (records.size() != 1)
            return session.refuse({records.empty() ? CliTexts::kNoCleanUp : CliTexts::kSeveralCleanUps,
                                   {{"id", Format::quoted(m_id)}}});
        if (!model.isWriter())
            return session.refuse(CliTexts::kOtherWriter);
        if (const auto refused = refusal(session, records.front()))
            return *refused;
        return restored(session, model, records.front());
    }

private:
    [[nodiscard]] std::optional<ExitStatus> refusal(Session& session, const CleanRecord& record)
    {
        const auto beside = wantsJson() ? ItemList::Beside::document : ItemList::Beside::nothing;
        const ItemList list = ItemList::toRestore(record, beside);
        if (list.isEmpty())
            return std::nullopt;
        list.show(session);
        const auto asking = m_isConfirmed ? Confirmation::Asking::unneeded : Confirmation::Asking::onTerminal;
        return Confirmation::refusal(session, asking, list.summary(CliTexts::kPutBackItems));
    }

    [[nodiscard]] ExitStatus restored(Session& session, AppModel& model, const CleanRecord& record)
    {
        const CleanUps::Restoration restoration = model.cleanUps()->restore(record);
        if (wantsJson())
            Session::printDocument(JsonDocuments::restore(restoration.outcome, restoration.message));
        else
            Session::print(restoration.message);
        const Cleaner::Restored& outcome = restoration.outcome;
        FailureList::show(session, outcome.failures, outcome.refusal, CliTexts::kRestoreNotBegun);
        if (!restoration.isRecorded)
            session.complain(CliTexts::kNotRecorded);
        return outcome.failed > 0 || !restoration.isRecorded ? ExitStatus::someFailed : ExitStatus::done;
    }

    std::string m_id;
    bool m_isConfirmed = false;
};

} // namespace

std::unique_ptr<Command> makeRestoreCommand()
{
    return std::make_unique<RestoreCommand>();
}

} // namespace orlen

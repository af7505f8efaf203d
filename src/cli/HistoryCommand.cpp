#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace orlen {

namespace {

/// Enough of an ID for `orlen restore`.
constexpr std::size_t kShownId = 8;

Message state(const CleanRecord& record)
{
    const auto restored = std::count_if(record.items.begin(), record.items.end(),
                                        [](const TrashedItem& item) { return item.restored; });
    if (restored == 0)
        return {};
    if (static_cast<std::size_t>(restored) == record.items.size())
        return CliTexts::kAllRestored;
    return {AppTexts::kRestoredCount, {{"count", restored}}};
}

void printHistory(const std::vector<CleanRecord>& history)
{
    using Kind = Table::Kind;
    const Figures& figures = Words::figures();
    Table table({{shown(CliTexts::kRecordHeading), Kind::text},
                 {shown(CliTexts::kDateHeading), Kind::text},
                 {shown(CliTexts::kCleanUpHeading), Kind::path},
                 {shown(CliTexts::kItemsHeading), Kind::number},
                 {shown(CliTexts::kSizeHeading), Kind::number},
                 {shown(CliTexts::kFailedHeading), Kind::number},
                 {"", Kind::text}});
    for (const CleanRecord& record : history) {
        table.addRow({{record.id.text().substr(0, kShownId), Style::dim},
                      {figures.dateAndTime(record.date)},
                      {shown(Format::displayable(AppTexts::titleOf(record.title))), Style::bold},
                      {figures.number(std::ssize(record.items))},
                      {figures.bytes(record.freed())},
                      {record.failed > 0 ? figures.number(record.failed) : "", Style::orange},
                      {shown(state(record)), Style::green}});
    }
    const Colours colours = Session::colours();
    Session::print(table.text(colours, Session::width()) + '\n' +
                   colours.styled(Style::dim, shown(CliTexts::kHowToRestore)) + '\n');
}

class HistoryCommand final : public Command {
public:
    HistoryCommand() : Command({"history", CliTexts::kHistorySummary}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        session.complain(model.notices());
        if (wantsJson())
            Session::printDocument(JsonDocuments::history(model.cleanUps()->history()));
        else if (model.cleanUps()->history().empty())
            Session::print(CliTexts::kNothingCleaned);
        else
            printHistory(model.cleanUps()->history());
        return ExitStatus::done;
    }
};

} // namespace

std::unique_ptr<Command> makeHistoryCommand()
{
    return std::make_unique<HistoryCommand>();
}

} // namespace orlen

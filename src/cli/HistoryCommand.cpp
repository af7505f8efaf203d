#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace orlen {

namespace {

/// Enough of an ID for `orlen restore`.
constexpr std::size_t kShownId = 8;

std::string state(const CleanRecord& record)
{
    const auto restored = std::count_if(record.items.begin(), record.items.end(),
                                        [](const TrashedItem& item) { return item.restored; });
    if (restored == 0)
        return {};
    if (static_cast<std::size_t>(restored) == record.items.size())
        return "restored";
    return Format::grouped(restored) + " restored";
}

void printHistory(const std::vector<CleanRecord>& history)
{
    using Kind = Table::Kind;
    Table table({{"Record", Kind::text},
                 {"Date", Kind::text},
                 {"Clean-up", Kind::path},
                 {"Items", Kind::number},
                 {"Size", Kind::number},
                 {"Failed", Kind::number},
                 {"", Kind::text}});
    for (const CleanRecord& record : history) {
        table.addRow({{record.id.text().substr(0, kShownId), Style::dim},
                      {Format::localTime(record.date)},
                      {PathText::forDisplay(record.title), Style::bold},
                      {Format::grouped(static_cast<std::int64_t>(record.items.size()))},
                      {byteCount(record.freed())},
                      {record.failed > 0 ? Format::grouped(record.failed) : "", Style::orange},
                      {state(record), Style::green}});
    }
    const Colours colours = Session::colours();
    Session::print(table.text(colours, Session::width()) + '\n' +
                   colours.styled(Style::dim, Texts::kHowToRestore) + '\n');
}

class HistoryCommand final : public Command {
public:
    HistoryCommand() : Command({"history", "List the clean-ups made so far, newest first"}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        session.complain(model.notices());
        if (wantsJson())
            Session::printDocument(JsonDocuments::history(model.cleanUps()->history()));
        else if (model.cleanUps()->history().empty())
            Session::print(std::string(Texts::kNothingCleaned) + '\n');
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

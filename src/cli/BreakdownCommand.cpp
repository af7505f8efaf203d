#include "app/AppModel.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"

#include <nlohmann/json.hpp>

namespace orlen {

namespace {

void printBreakdown(const StorageBreakdown& breakdown)
{
    const Colours colours = Session::colours();
    const Figures& figures = Words::figures();
    Table table({{shown(CliTexts::kCategoryHeading), Table::Kind::text},
                 {shown(CliTexts::kSizeHeading), Table::Kind::number},
                 {"", Table::Kind::text}});
    for (const OrlenCategory category : kAllCategories) {
        const auto bytes = breakdown.cats.find(category);
        const std::int64_t size = bytes == breakdown.cats.end() ? 0 : bytes->second;
        table.addRow({{shown(label(category))},
                      {figures.bytes(size)},
                      {Table::bar(size, breakdown.total), Style::blue}});
    }
    table.addRow({{shown(CliTexts::kFree)},
                  {figures.bytes(breakdown.free)},
                  {Table::bar(breakdown.free, breakdown.total), Style::green}});
    const Message heading{CliTexts::kFreeOf,
                          {{"free", Bytes{breakdown.free}}, {"total", Bytes{breakdown.total}}}};
    Session::print(colours.styled(Style::bold, shown(heading)) + "\n\n" +
                   table.text(colours, Session::width()));
}

class BreakdownCommand final : public Command {
public:
    BreakdownCommand() : Command({"breakdown", CliTexts::kBreakdownSummary}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        model.storage()->refreshBreakdown(Storage::Recording::none);
        session.run({[&] { return model.storage()->isBreakdownReady() || session.isInterrupted(); }, [] {},
                     [] { return CliTexts::kMeasuring; }});
        if (!model.storage()->isBreakdownReady())
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(JsonDocuments::breakdown(model.storage()->breakdown()));
        else
            printBreakdown(model.storage()->breakdown());
        return ExitStatus::done;
    }
};

} // namespace

std::unique_ptr<Command> makeBreakdownCommand()
{
    return std::make_unique<BreakdownCommand>();
}

} // namespace orlen

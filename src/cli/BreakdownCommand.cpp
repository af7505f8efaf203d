#include "app/AppModel.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "platform/text/ByteCount.h"

#include <nlohmann/json.hpp>

namespace orlen {

namespace {

void printBreakdown(const StorageBreakdown& breakdown)
{
    const Colours colours = Session::colours();
    Table table({{"Category", Table::Kind::text}, {"Size", Table::Kind::number}, {"", Table::Kind::text}});
    for (const OrlenCategory category : kAllCategories) {
        const auto bytes = breakdown.cats.find(category);
        const std::int64_t size = bytes == breakdown.cats.end() ? 0 : bytes->second;
        table.addRow({{std::string(label(category))},
                      {byteCount(size)},
                      {Table::bar(size, breakdown.total), Style::blue}});
    }
    table.addRow(
        {{"Free"}, {byteCount(breakdown.free)}, {Table::bar(breakdown.free, breakdown.total), Style::green}});
    Session::print(
        colours.styled(Style::bold, byteCount(breakdown.free) + " free of " + byteCount(breakdown.total)) +
        "\n\n" + table.text(colours, Session::width()));
}

class BreakdownCommand final : public Command {
public:
    BreakdownCommand() : Command({"breakdown", "Measure how the storage of the start-up volume is used"}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        model.storage()->refreshBreakdown(Storage::Recording::none);
        session.run({[&] { return model.storage()->isBreakdownReady() || session.isInterrupted(); }, [] {},
                     [] { return std::string(Texts::kMeasuring); }});
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

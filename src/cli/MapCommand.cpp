#include "app/DiskMapModel.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/PathArgument.h"
#include "cli/Table.h"
#include "model/Words.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <chrono>
#include <optional>

namespace orlen {

namespace {

Table::Cell nameCell(const TreeNode& node)
{
    std::string name = node.isOther ? shown(node.title()) : PathText::forDisplay(node.name);
    if (node.isDir)
        name += '/';
    if (node.reading != TreeNode::Reading::whole) {
        const bool isUnread = node.reading == TreeNode::Reading::none;
        name = shown(
            Message{isUnread ? CliTexts::kUnreadFolder : CliTexts::kPartlyReadFolder, {{"name", name}}});
    }
    return {std::move(name), node.isOther ? Style::dim : Style::plain};
}

void printMap(const DiskMapModel& model, JsonDocuments::Seconds duration)
{
    std::int64_t total = 0;
    for (const TreeNode& node : model.nodes())
        total = checkedAdd(total, node.size);
    Table table({{shown(CliTexts::kSizeHeading), Table::Kind::number},
                 {"", Table::Kind::text},
                 {shown(CliTexts::kNameHeading), Table::Kind::path}});
    for (const TreeNode& node : model.nodes())
        table.addRow({{Words::figures().bytes(node.size)},
                      {Table::bar(node.size, total), Style::blue},
                      nameCell(node)});
    const Colours colours = Session::colours();
    const Message heading{CliTexts::kSizeInFolder,
                          {{"size", Bytes{total}}, {"path", Format::shownPath(model.current())}}};
    const Message measured{CliTexts::kMeasuredIn, {{"time", duration}}};
    Session::print(colours.styled(Style::bold, shown(heading)) + '\n' +
                   colours.styled(Style::dim, shown(measured)) + '\n');
    if (!model.nodes().empty())
        Session::print('\n' + table.text(colours, Session::width()));
}

class MapCommand final : public Command {
public:
    MapCommand() : Command({"map", CliTexts::kMapSummary}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("DIR", m_argument, shown(CliTexts::kMapFolderHelp));
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const std::string argument = m_argument.value_or(Places::current().home);
        const std::string folder = PathArgument::readableFolder(argument);
        if (folder.empty() || (wantsJson() && !PathText::isValidUtf8(folder)))
            return session.refuse({folder.empty() ? CliTexts::kNoReadableFolder : CliTexts::kNoTextInDocument,
                                   {{"path", Format::quoted(argument)}}});
        const auto started = std::chrono::steady_clock::now();
        DiskMapModel model(folder);
        model.load();
        session.run({[&] { return !model.isLoading() || session.isInterrupted(); }, [] {},
                     [&] {
                         return Message{CliTexts::kMeasuringFolder, {{"path", Format::shownPath(folder)}}};
                     }});
        if (model.isLoading())
            return session.cancelled();
        const JsonDocuments::Seconds duration = std::chrono::steady_clock::now() - started;
        if (wantsJson())
            Session::printDocument(JsonDocuments::map(folder, model.nodes(), duration));
        else
            printMap(model, duration);
        return ExitStatus::done;
    }

private:
    std::optional<std::string> m_argument;
};

} // namespace

std::unique_ptr<Command> makeMapCommand()
{
    return std::make_unique<MapCommand>();
}

} // namespace orlen

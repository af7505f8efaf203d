#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "insight/Growth.h"
#include "insight/InsightTexts.h"
#include "model/Words.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace orlen {

namespace {

void printGrowth(const std::optional<Growth>& growth)
{
    if (!growth) {
        Session::print(InsightTexts::kNothingToCompare);
        return;
    }
    const Place since{"date", growth->start()};
    if (growth->folders.empty()) {
        Session::print({InsightTexts::kNothingGrew, {since}});
        return;
    }
    using Kind = Table::Kind;
    Table table({{shown(CliTexts::kGrowthHeading), Kind::number},
                 {shown(CliTexts::kSizeHeading), Kind::number},
                 {shown(CliTexts::kPathHeading), Kind::path}});
    const Figures& figures = Words::figures();
    for (const Growth::Folder& folder : growth->folders)
        table.addRow({{figures.bytes(folder.bytes()), Style::bold},
                      {figures.bytes(folder.now)},
                      {Format::shownPath(folder.path)}});
    const Colours colours = Session::colours();
    Session::print(colours.styled(Style::bold, shown(Message{InsightTexts::kGrewSince, {since}})) + "\n\n" +
                   table.text(colours, Session::width()));
}

class GrewCommand final : public Command {
public:
    GrewCommand() : Command({"grew", CliTexts::kGrewSummary}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("--since", m_since, shown(CliTexts::kSinceHelp))->type_name("DATE");
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const auto from = m_since.empty() ? TimePoint() : timeFromIso(m_since + "T00:00:00Z");
        if (!from)
            return session.refuse({CliTexts::kNoDate, {{"word", Format::quoted(m_since)}}});
        const AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        session.complain(model.notices());
        const std::vector<FolderReading>& readings = model.storage()->folders().readings();
        const auto growth =
            m_since.empty() ? Growth::sinceLastScan(readings) : Growth::between(readings, *from);
        if (wantsJson())
            Session::printDocument(JsonDocuments::growth(growth));
        else
            printGrowth(growth);
        return ExitStatus::done;
    }

private:
    std::string m_since;
};

} // namespace

std::unique_ptr<Command> makeGrewCommand()
{
    return std::make_unique<GrewCommand>();
}

} // namespace orlen

#include "app/AppTexts.h"
#include "app/Format.h"
#include "clean/Persist.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "tools/apps/LeftBehind.h"
#include "tools/apps/Leftovers.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <iterator>

namespace orlen {

namespace {

void printLeftovers(const Message& heading, const std::vector<FileEntry>& leftovers)
{
    if (leftovers.empty()) {
        Session::print(CliTexts::kNoLeftovers);
        return;
    }
    using Kind = Table::Kind;
    Table table({{shown(CliTexts::kSizeHeading), Kind::number},
                 {"", Kind::text},
                 {shown(CliTexts::kPathHeading), Kind::path},
                 {"", Kind::text}});
    for (const FileEntry& entry : leftovers) {
        const Message byName = Leftovers::kByNameOnly;
        const bool isByName = std::ranges::find(entry.notes, byName) != entry.notes.end();
        table.addRow({{Words::figures().bytes(entry.size)},
                      {shown(Leftovers::label(entry.path)), Style::dim},
                      {Format::shownPath(entry.path)},
                      {isByName ? shown(byName) : std::string(), Style::orange}});
    }
    const Colours colours = Session::colours();
    Session::print(colours.styled(Style::bold, shown(heading)) + "\n\n" +
                   table.text(colours, Session::width()));
}

void printLeftBehind(const std::vector<FileEntry>& leftovers)
{
    if (leftovers.empty()) {
        Session::print(CliTexts::kNothingLeftBehind);
        return;
    }
    Table table({{"", Table::Kind::number}, {"", Table::Kind::path}});
    std::int64_t total = 0;
    for (const FileEntry& entry : leftovers) {
        total = checkedAdd(total, entry.size);
        table.addRow({{Words::figures().bytes(entry.size)}, {Format::shownPath(entry.path)}});
        table.addLine(1, {"  " + shown(Format::displayable(noteOf(entry))), Style::dim});
    }
    const Colours colours = Session::colours();
    const Message heading{CliTexts::kLeftBehind, {{"count", std::ssize(leftovers)}, {"size", Bytes{total}}}};
    Session::print(colours.styled(Style::bold, shown(heading)) + "\n\n" +
                   table.text(colours, Session::width()));
}

std::vector<FileEntry> leftBehind(const std::vector<CleanRecord>& history, const std::stop_token& stop)
{
    return LeftBehind::find(AppList::list(stop), history, std::chrono::system_clock::now(), stop);
}

class LeftoversCommand final : public Command {
public:
    LeftoversCommand() : Command({"leftovers", CliTexts::kLeftoversSummary}) {}

    void addOptions(CLI::App& app) override
    {
        m_options = {
            app.add_option("--id", m_identifier, shown(CliTexts::kAppIdHelp))->type_name("ID"),
            app.add_option("--name", m_name, shown(CliTexts::kAppNameHelp))->type_name("NAME"),
        };
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const bool isOfOne = std::any_of(m_options.begin(), m_options.end(),
                                         [](const CLI::Option* option) { return option->count() > 0; });
        if (isOfOne && m_identifier.empty() && m_name.empty())
            return session.refuse(CliTexts::kNobodysLeftovers);
        Safety::refresh();
        const std::vector<CleanRecord> history = Persist::loadHistory().records;
        const auto leftovers = Background::resultUnlessCancelled(
            session, [] { return CliTexts::kLookingForLeftovers; },
            [&](const std::stop_token& stop) {
                return isOfOne ? Leftovers::find(m_identifier, m_name, stop) : leftBehind(history, stop);
            });
        if (!leftovers)
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(JsonDocuments::leftovers(*leftovers));
        else if (isOfOne)
            printLeftovers(heading(), *leftovers);
        else
            printLeftBehind(*leftovers);
        return ExitStatus::done;
    }

private:
    std::vector<CLI::Option*> m_options; ///< that name an application; owned by the parser
    [[nodiscard]] Message heading() const
    {
        if (m_identifier.empty())
            return {CliTexts::kLeftoversByName, {{"name", PathText::forDisplay(m_name)}}};
        return {AppTexts::kLeftoversByIdentifier, {{"id", PathText::forDisplay(m_identifier)}}};
    }

    std::string m_identifier;
    std::string m_name;
};

} // namespace

std::unique_ptr<Command> makeLeftoversCommand()
{
    return std::make_unique<LeftoversCommand>();
}

} // namespace orlen

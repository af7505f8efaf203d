#include "app/Format.h"
#include "clean/Persist.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "tools/apps/LeftBehind.h"
#include "tools/apps/Leftovers.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>

namespace orlen {

namespace {

void printLeftovers(const std::string& heading, const std::vector<FileEntry>& leftovers)
{
    if (leftovers.empty()) {
        Session::print(std::string(Texts::kNoLeftovers) + '\n');
        return;
    }
    using Kind = Table::Kind;
    Table table({{"Size", Kind::number}, {"", Kind::text}, {"Path", Kind::path}, {"", Kind::text}});
    for (const FileEntry& entry : leftovers) {
        const std::string label(Leftovers::label(entry.path));
        const bool isByName = entry.note == Leftovers::kByNameOnly;
        table.addRow({{byteCount(entry.size)},
                      {label, Style::dim},
                      {Format::shownPath(entry.path)},
                      {isByName ? *entry.note : std::string(), Style::orange}});
    }
    const Colours colours = Session::colours();
    Session::print(colours.styled(Style::bold, heading) + "\n\n" + table.text(colours, Session::width()));
}

void printLeftBehind(const std::vector<FileEntry>& leftovers)
{
    if (leftovers.empty()) {
        Session::print(std::string(Texts::kNothingLeftBehind) + '\n');
        return;
    }
    Table table({{"", Table::Kind::number}, {"", Table::Kind::path}});
    std::int64_t total = 0;
    for (const FileEntry& entry : leftovers) {
        total = checkedAdd(total, entry.size);
        table.addRow({{byteCount(entry.size)}, {Format::shownPath(entry.path)}});
        table.addLine(1, {"  " + PathText::forDisplay(entry.note.value_or("")), Style::dim});
    }
    const Colours colours = Session::colours();
    const std::string heading = std::string(LeftBehind::kTitle) + ": " +
                                Format::counted(static_cast<std::int64_t>(leftovers.size()), "folder") +
                                ", " + byteCount(total);
    Session::print(colours.styled(Style::bold, heading) + "\n\n" + table.text(colours, Session::width()));
}

std::vector<FileEntry> leftBehind(const std::vector<CleanRecord>& history, const std::stop_token& stop)
{
    return LeftBehind::find(AppList::list(stop), history, std::chrono::system_clock::now(), stop);
}

class LeftoversCommand final : public Command {
public:
    LeftoversCommand()
        : Command(
              {"leftovers", "Show what an application left in your folders, or what all that are gone left"})
    {
    }

    void addOptions(CLI::App& app) override
    {
        m_options = {
            app.add_option("--id", m_identifier, "Identifier of the application, such as org.example.App")
                ->type_name("ID"),
            app.add_option("--name", m_name, "Name of the application")->type_name("NAME"),
        };
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const bool isOfOne = std::any_of(m_options.begin(), m_options.end(),
                                         [](const CLI::Option* option) { return option->count() > 0; });
        if (isOfOne && m_identifier.empty() && m_name.empty())
            return session.refuse(Texts::kNobodysLeftovers);
        Safety::refresh();
        const std::vector<CleanRecord> history = Persist::loadHistory().records;
        const auto leftovers = Background::resultUnlessCancelled(
            session, [] { return std::string(Texts::kLookingForLeftovers); },
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
    [[nodiscard]] std::string heading() const
    {
        const bool isByName = m_identifier.empty();
        const std::string what(isByName ? Texts::kLeftoversByName : Texts::kLeftoversBy);
        return what + PathText::forDisplay(isByName ? m_name : m_identifier) + ')';
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

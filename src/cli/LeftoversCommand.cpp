#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "model/ByteCount.h"
#include "platform/text/PathText.h"
#include "tools/apps/Leftovers.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

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

class LeftoversCommand final : public Command {
public:
    LeftoversCommand() : Command({"leftovers", "Show what an application left in your folders"}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("--id", m_identifier, "Identifier of the application, such as org.example.App")
            ->type_name("ID");
        app.add_option("--name", m_name, "Name of the application")->type_name("NAME");
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        if (m_identifier.empty() && m_name.empty())
            return session.refuse(Texts::kNobodysLeftovers);
        Safety::refresh();
        const auto leftovers = Background::resultUnlessCancelled(
            session, [] { return std::string(Texts::kLookingForLeftovers); },
            [&](const std::stop_token& stop) { return Leftovers::find(m_identifier, m_name, stop); });
        if (!leftovers)
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(JsonDocuments::leftovers(*leftovers));
        else
            printLeftovers(heading(), *leftovers);
        return ExitStatus::done;
    }

private:
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

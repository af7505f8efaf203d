#include "app/Format.h"
#include "cli/Background.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/LaunchControl.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <stop_token>
#include <utility>
#include <vector>

namespace orlen {

namespace {

using Items = std::vector<LaunchItem>;

Message asking()
{
    return CliTexts::kAskingServices;
}

/// What is special about an item; often nothing.
Message remark(const LaunchItem& item)
{
    std::vector<Message> remarks;
    if (item.isPartOfDesktop)
        remarks.emplace_back(CliTexts::kPartOfDesktop);
    if (!item.isSwitchable)
        remarks.emplace_back(item.reason);
    return Message::joined(std::move(remarks), Several::Joint::facts);
}

void printItems(const Items& items)
{
    const Colours colours = Session::colours();
    if (items.empty()) {
        Session::print(CliTexts::kNoStartupItems);
        return;
    }
    using Kind = Table::Kind;
    Table table({{"", Kind::text},
                 {shown(CliTexts::kItemHeading), Kind::text},
                 {shown(CliTexts::kForHeading), Kind::text},
                 {shown(CliTexts::kRunsHeading), Kind::path},
                 {"", Kind::text}});
    for (const LaunchItem& item : items) {
        table.addRow({item.enabled ? Table::Cell{shown(CliTexts::kOn), Style::green}
                                   : Table::Cell{shown(CliTexts::kOff), Style::dim},
                      {PathText::forDisplay(item.label), Style::bold},
                      {shown(item.scope)},
                      {Format::shownPath(item.program)},
                      {shown(remark(item)), Style::orange}});
    }
    Session::print(colours.styled(Style::dim, shown(CliTexts::kStartupItems)) + "\n\n" +
                   table.text(colours, Session::width()) + '\n' +
                   colours.styled(Style::dim, shown(CliTexts::kHowToSwitch)) + '\n');
}

/// The item at this path, or else the items with this label.
Items named(const Items& items, const std::string& name)
{
    Items found;
    for (const LaunchItem& item : items) {
        if (item.path == name)
            return {item};
        if (item.label == name)
            found.push_back(item);
    }
    return found;
}

class StartupCommand final : public Command {
public:
    StartupCommand() : Command({"startup", CliTexts::kStartupSummary}) {}

    void addOptions(CLI::App& app) override
    {
        m_disable = addSwitch(app, "disable", CliTexts::kDisableSummary);
        m_enable = addSwitch(app, "enable", CliTexts::kEnableSummary);
        app.require_subcommand(0, 1);
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const auto items = Background::resultUnlessCancelled(
            session, asking, [](const std::stop_token& /*stop*/) { return LaunchControl::load(); });
        if (!items)
            return session.cancelled();
        if (m_disable->parsed() || m_enable->parsed())
            return runSwitch(session, *items);
        if (wantsJson())
            Session::printDocument(JsonDocuments::startup(*items));
        else
            printItems(*items);
        return ExitStatus::done;
    }

private:
    CLI::App* addSwitch(CLI::App& app, const char* name, const Text& summary)
    {
        CLI::App* own = app.add_subcommand(name, shown(summary));
        own->add_option("LABEL", m_name, shown(CliTexts::kStartupItemHelp))->required();
        own->fallthrough();
        return own;
    }

    [[nodiscard]] ExitStatus runSwitch(Session& session, const Items& items)
    {
        const Items found = named(items, m_name);
        if (found.size() != 1) {
            session.complain({found.empty() ? CliTexts::kNoStartupItem : CliTexts::kSeveralStartupItems,
                              {{"name", Format::quoted(m_name)}}});
            for (const LaunchItem& item : found)
                session.note("  " + PathText::forDisplay(item.path) + '\n');
            return ExitStatus::wrongCall;
        }
        const LaunchItem& item = found.front();
        const bool isWanted = m_enable->parsed();
        // An item already on is left alone; one that is off may still be running.
        const auto set = [&](const std::stop_token& /*stop*/) { return LaunchControl::set(item, isWanted); };
        const bool isDone = (item.enabled && isWanted) ||
                            Background::result(session, asking, set, Session::Work::Nature::moving);
        report(session, item, isDone);
        return isDone ? ExitStatus::done : ExitStatus::someFailed;
    }

    void report(Session& session, LaunchItem item, bool isDone)
    {
        const bool isWanted = m_enable->parsed();
        const Place name{"name", Format::quoted(item.label)};
        if (isDone)
            item.enabled = isWanted;
        else
            session.complain(Message::joined(
                {{isWanted ? CliTexts::kNotSwitchedOn : CliTexts::kNotSwitchedOff, {name}}, item.reason},
                Several::Joint::sentences));
        if (wantsJson())
            Session::printDocument(JsonDocuments::startupItem(item));
        else if (isDone)
            Session::print({isWanted ? ToolsTexts::kSwitchedOn : ToolsTexts::kSwitchedOff, {name}});
        if (isDone && !isWanted && item.isPartOfDesktop)
            session.complain({CliTexts::kMayBeMissed, {name}});
    }

    std::string m_name;
    CLI::App* m_disable = nullptr; ///< owned by the main parser
    CLI::App* m_enable = nullptr;
};

} // namespace

std::unique_ptr<Command> makeStartupCommand()
{
    return std::make_unique<StartupCommand>();
}

} // namespace orlen

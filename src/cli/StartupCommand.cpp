#include "app/Format.h"
#include "cli/Background.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "platform/text/PathText.h"
#include "tools/startup/LaunchControl.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <stop_token>
#include <utility>
#include <vector>

namespace orlen {

namespace {

using Items = std::vector<LaunchItem>;

std::string asking()
{
    return std::string(Texts::kAskingServices);
}

void printItems(const Items& items)
{
    const Colours colours = Session::colours();
    if (items.empty()) {
        Session::print(std::string(Texts::kNoStartupItems) + '\n');
        return;
    }
    using Kind = Table::Kind;
    Table table({{"", Kind::text},
                 {"Item", Kind::text},
                 {"For", Kind::text},
                 {"Runs", Kind::path},
                 {"", Kind::text}});
    for (const LaunchItem& item : items) {
        std::string remark(item.isPartOfDesktop ? Texts::kPartOfDesktop : std::string_view());
        if (!item.isSwitchable)
            remark += (remark.empty() ? "" : " · ") + item.reason;
        table.addRow({item.enabled ? Table::Cell{"On", Style::green} : Table::Cell{"Off", Style::dim},
                      {PathText::forDisplay(item.label), Style::bold},
                      {item.scope},
                      {Format::shownPath(item.program)},
                      {std::move(remark), Style::orange}});
    }
    Session::print(colours.styled(Style::dim, Texts::kStartupItems) + "\n\n" +
                   table.text(colours, Session::width()) + '\n' +
                   colours.styled(Style::dim, Texts::kHowToSwitch) + '\n');
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
    StartupCommand() : Command({"startup", "Show what starts when you log in; switch it off and on"}) {}

    void addOptions(CLI::App& app) override
    {
        m_disable =
            addSwitch(app, "disable", "Switch an item off: stop it now and keep it off at the next login");
        m_enable = addSwitch(app, "enable", "Switch an item on again: it starts at the next login");
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
    CLI::App* addSwitch(CLI::App& app, const char* name, const char* summary)
    {
        CLI::App* own = app.add_subcommand(name, summary);
        own->add_option("LABEL", m_name, "Label of the item, or the path of its file")->required();
        own->fallthrough();
        return own;
    }

    [[nodiscard]] ExitStatus runSwitch(Session& session, const Items& items)
    {
        const Items found = named(items, m_name);
        if (found.size() != 1) {
            session.complain(found.empty() ? std::string(Texts::kNoStartupItem) + Format::quoted(m_name) + '.'
                                           : Format::quoted(m_name).append(Texts::kSeveralStartupItems));
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
        const std::string name = Format::quoted(item.label);
        if (isDone)
            item.enabled = isWanted;
        else
            session.complain(name + std::string(isWanted ? Texts::kNotSwitchedOn : Texts::kNotSwitchedOff) +
                             (item.isSwitchable ? "" : " " + item.reason));
        if (wantsJson())
            Session::printDocument(JsonDocuments::startupItem(item));
        else if (isDone)
            Session::print(name + std::string(isWanted ? Texts::kSwitchedOn : Texts::kSwitchedOff) + '\n');
        if (isDone && !isWanted && item.isPartOfDesktop)
            session.complain(name + std::string(Texts::kMayBeMissed));
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

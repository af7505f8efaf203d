#include "app/AppModel.h"
#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/PathArgument.h"
#include "cli/PlanCarrier.h"
#include "model/Words.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "scan/ScanTexts.h"
#include "tools/apps/AppList.h"
#include "tools/apps/Leftovers.h"
#include "tools/apps/Uninstall.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace orlen {

namespace {

using Apps = std::vector<AppInfo>;

/// The app at this path, or else the apps with this name, ignoring case.
Apps named(const Apps& apps, const std::string& argument)
{
    const std::string path = PathArgument::absolute(argument);
    const std::string name = LanguageTools::lowerCase(argument);
    Apps found;
    for (const AppInfo& app : apps) {
        if (app.path == path)
            return {app};
        if (LanguageTools::lowerCase(app.name) == name)
            found.push_back(app);
    }
    return found;
}

/// The application to remove and its leftovers.
struct Prepared {
    AppInfo app;
    Leftovers::Finding leftovers;
    bool isRunning = false;
};

Prepared prepared(AppInfo app, const Apps& listed, const std::stop_token& stop)
{
    Prepared result{std::move(app), {}, false};
    result.app.size = FS::allocatedSize(result.app.path, stop);
    result.leftovers = Leftovers::find(result.app, listed, stop);
    result.isRunning = AppList::isRunning(result.app);
    return result;
}

class UninstallCommand final : public Command {
public:
    UninstallCommand() : Command({"uninstall", CliTexts::kUninstallSummary}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("NAME", m_argument, shown(CliTexts::kAppHelp))->required();
        app.add_flag("--by-name", m_isByNameTaken, shown(CliTexts::kByNameHelp));
        m_carrier.addOptions(app);
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly, AppModel::Access::writer, {}});
        if (!m_carrier.isReady(model))
            return session.refuse(CliTexts::kOtherWriter);
        session.complain(model.notices());
        Safety::refresh();
        const auto apps = Background::resultUnlessCancelled(
            session, [] { return CliTexts::kLookingForApps; },
            [](const std::stop_token& stop) { return AppList::list(stop); });
        if (!apps)
            return session.cancelled();
        const auto app = chosen(session, *apps);
        if (!app)
            return ExitStatus::wrongCall;
        const auto ready = Background::resultUnlessCancelled(
            session, [] { return CliTexts::kLookingForLeftovers; },
            [&](const std::stop_token& stop) { return prepared(*app, *apps, stop); });
        if (!ready)
            return session.cancelled();
        warn(session, *ready);
        std::vector<FileEntry> leftovers = ready->leftovers.entries;
        const std::vector<FileEntry>& byName = ready->leftovers.byName;
        if (m_isByNameTaken)
            leftovers.insert(leftovers.end(), byName.begin(), byName.end());
        else
            showLeft(session, byName);
        return m_carrier.carryOut(session, model, Uninstall::plan(ready->app, leftovers),
                                  wantsJson() ? ItemList::Beside::document : ItemList::Beside::nothing);
    }

private:
    /// Prints a complaint and returns nothing if no app or several match, or if another program manages it.
    [[nodiscard]] std::optional<AppInfo> chosen(Session& session, const Apps& apps) const
    {
        const Apps found = named(apps, m_argument);
        if (found.empty()) {
            session.complain({CliTexts::kNoApp, {{"name", Format::quoted(m_argument)}}});
            return std::nullopt;
        }
        if (found.size() > 1) {
            session.complain({CliTexts::kSeveralApps, {{"name", Format::quoted(m_argument)}}});
            for (const AppInfo& app : found)
                session.note("  " + PathText::forDisplay(app.path) + '\n');
            return std::nullopt;
        }
        if (!found.front().isRemovable()) {
            session.complain(found.front().advice);
            return std::nullopt;
        }
        return found.front();
    }

    static void warn(Session& session, const Prepared& ready)
    {
        if (ready.isRunning)
            session.complain({ScanTexts::kQuitFirst, {{"name", PathText::forDisplay(ready.app.name)}}});
        if (ready.leftovers.isOtherCopyInstalled)
            session.complain(CliTexts::kOtherCopy);
    }

    static void showLeft(Session& session, const std::vector<FileEntry>& byName)
    {
        if (byName.empty())
            return;
        session.complain(CliTexts::kByNameLeft);
        for (const FileEntry& entry : byName) {
            const Message line{CliTexts::kPathAndSize,
                               {{"path", Format::shownPath(entry.path)}, {"size", Bytes{entry.size}}}};
            session.note("  " + shown(line) + '\n');
        }
    }

    std::string m_argument;
    bool m_isByNameTaken = false;
    PlanCarrier m_carrier;
};

} // namespace

std::unique_ptr<Command> makeUninstallCommand()
{
    return std::make_unique<UninstallCommand>();
}

} // namespace orlen

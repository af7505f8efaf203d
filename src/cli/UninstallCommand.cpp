#include "app/AppModel.h"
#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Command.h"
#include "cli/Confirmation.h"
#include "cli/InstalledApps.h"
#include "cli/ItemList.h"
#include "cli/JsonDocuments.h"
#include "cli/PathArgument.h"
#include "cli/PlanCarrier.h"
#include "cli/Texts.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "tools/apps/AppList.h"
#include "tools/apps/Leftovers.h"
#include "tools/apps/Uninstall.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

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
    [[nodiscard]] Description description() const override
    {
        return {"uninstall", "Move an application and its leftovers to the Trash after a yes"};
    }

    void addOptions(CLI::App& app) override
    {
        app.add_option("NAME", m_argument, "Name or path of the application")->required();
        app.add_flag("--dry-run", m_isDryRun, "Print the plan and move nothing");
        app.add_flag("--yes", m_isConfirmed, "Move without asking");
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly, AppModel::Access::writer, {}});
        if (!m_isDryRun && !model.isWriter()) {
            session.complain(Texts::kOtherWriter);
            return ExitStatus::wrongCall;
        }
        session.complain(model.notices());
        Safety::refresh();
        const auto apps =
            InstalledApps::inBackground(session, Texts::kLookingForApps, [](const std::stop_token& stop) {
                return InstalledApps::list(InstalledApps::Sizes::absent, stop);
            });
        if (!apps)
            return ExitStatus::interrupted;
        const auto app = chosen(session, *apps);
        if (!app)
            return ExitStatus::wrongCall;
        const auto ready = InstalledApps::inBackground(
            session, Texts::kLookingForLeftovers,
            [&](const std::stop_token& stop) { return prepared(*app, *apps, stop); });
        if (!ready)
            return ExitStatus::interrupted;
        warn(session, *ready);
        return carriedOut(session, model, Uninstall::plan(ready->app, ready->leftovers.entries));
    }

private:
    /// Prints a complaint and returns nothing if no app or several match, or if another program manages it.
    [[nodiscard]] std::optional<AppInfo> chosen(Session& session, const Apps& apps) const
    {
        const Apps found = named(apps, m_argument);
        if (found.empty()) {
            session.complain(std::string(Texts::kNoApp) + Format::quoted(m_argument) + '.');
            return std::nullopt;
        }
        if (found.size() > 1) {
            session.complain(Format::quoted(m_argument).append(Texts::kSeveralApps));
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
        if (Leftovers::isApple(ready.app.bundleID))
            session.complain(Texts::kAppleApp);
        if (ready.isRunning)
            session.complain("Quit " + PathText::forDisplay(ready.app.name) + " first");
        if (ready.leftovers.isOtherCopyInstalled)
            session.complain(Texts::kOtherCopy);
    }

    [[nodiscard]] ExitStatus carriedOut(Session& session, AppModel& model, const CleanPlan& plan)
    {
        const auto beside = wantsJson() ? ItemList::Beside::document : ItemList::Beside::nothing;
        if (m_isDryRun) {
            if (wantsJson())
                Session::printDocument(JsonDocuments::dryRun(plan));
            else
                ItemList::toClean(plan, beside).show(session);
            return ExitStatus::done;
        }
        const auto asking = m_isConfirmed ? Confirmation::Asking::unneeded : Confirmation::Asking::onTerminal;
        return PlanCarrier{asking, beside}.carryOut(session, model, plan);
    }

    std::string m_argument;
    bool m_isDryRun = false;
    bool m_isConfirmed = false;
};

} // namespace

std::unique_ptr<Command> makeUninstallCommand()
{
    return std::make_unique<UninstallCommand>();
}

} // namespace orlen

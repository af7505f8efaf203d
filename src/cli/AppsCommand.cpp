#include "app/Format.h"
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

#include <nlohmann/json.hpp>

namespace orlen {

namespace {

std::vector<AppInfo> measuredApps(const std::stop_token& stop)
{
    std::vector<AppInfo> apps = AppList::list(stop);
    std::vector<std::int64_t> bytes(apps.size());
    AppList::measure(
        apps, [&](std::size_t index, std::int64_t size) { bytes[index] = size; }, stop);
    for (std::size_t i = 0; i < apps.size(); ++i)
        apps[i].size = bytes[i];
    return apps;
}

/// In a word or two.
std::string_view kindOf(AppSource source)
{
    switch (source) {
    case AppSource::bundle:
        return "App bundle";
    case AppSource::appImage:
        return "AppImage";
    case AppSource::folder:
        return "Folder";
    case AppSource::flatpak:
        return "Flatpak";
    case AppSource::snap:
        return "Snap";
    case AppSource::removedFlatpak:
        return "App data";
    }
    return {};
}

void printApps(const std::vector<AppInfo>& apps)
{
    if (apps.empty()) {
        Session::print(std::string(Texts::kNoApps) + '\n');
        return;
    }
    using Kind = Table::Kind;
    Table table({{"Name", Kind::text}, {"Size", Kind::number}, {"Source", Kind::text}, {"Path", Kind::path}});
    std::int64_t total = 0;
    for (const AppInfo& app : apps) {
        total = checkedAdd(total, app.size.value_or(0));
        table.addRow({{PathText::forDisplay(app.name), Style::bold},
                      {byteCount(app.size.value_or(0))},
                      {std::string(kindOf(app.source)), Style::dim},
                      {Format::shownPath(app.path)}});
    }
    const Colours colours = Session::colours();
    const std::string heading =
        Format::counted(static_cast<std::int64_t>(apps.size()), "application") + ", " + byteCount(total);
    Session::print(colours.styled(Style::bold, heading) + "\n\n" + table.text(colours, Session::width()));
}

class AppsCommand final : public Command {
public:
    AppsCommand() : Command({"apps", "Show the installed applications with their sizes"}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        Safety::refresh();
        const auto apps = Background::resultUnlessCancelled(
            session, [] { return std::string(Texts::kMeasuringApps); }, measuredApps);
        if (!apps)
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(JsonDocuments::apps(*apps));
        else
            printApps(*apps);
        return ExitStatus::done;
    }
};

} // namespace

std::unique_ptr<Command> makeAppsCommand()
{
    return std::make_unique<AppsCommand>();
}

} // namespace orlen

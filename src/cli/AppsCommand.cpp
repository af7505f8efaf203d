#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "tools/ToolsTexts.h"
#include "tools/apps/AppList.h"

#include <nlohmann/json.hpp>

#include <iterator>

namespace orlen {

namespace {

std::vector<AppInfo> measuredApps(const std::stop_token& stop)
{
    std::vector<AppInfo> apps = AppList::list(stop);
    std::vector<std::optional<std::int64_t>> bytes(apps.size());
    const auto into = [&bytes](std::size_t index, std::int64_t size) { bytes[index] = size; };
    AppList::measure(apps, into, stop);
    std::vector<std::optional<std::int64_t>> dataBytes(apps.size());
    const auto intoData = [&dataBytes](std::size_t index, std::int64_t size) { dataBytes[index] = size; };
    AppList::measureData(apps, intoData, stop);
    for (std::size_t i = 0; i < apps.size(); ++i) {
        apps[i].size = bytes[i];
        apps[i].dataSize = dataBytes[i];
    }
    return apps;
}

/// In a word or two.
Message kindOf(AppSource source)
{
    switch (source) {
    case AppSource::bundle:
        return CliTexts::kAppBundle;
    case AppSource::appImage:
        return Message::verbatim("AppImage");
    case AppSource::folder:
        return CliTexts::kAppFolder;
    case AppSource::flatpak:
        return Message::verbatim("Flatpak");
    case AppSource::snap:
        return Message::verbatim("Snap");
    case AppSource::removedFlatpak:
        return ToolsTexts::kAppData;
    }
    return {};
}

void printApps(const std::vector<AppInfo>& apps)
{
    if (apps.empty()) {
        Session::print(CliTexts::kNoApps);
        return;
    }
    using Kind = Table::Kind;
    Table table({{shown(CliTexts::kNameHeading), Kind::text},
                 {shown(CliTexts::kSizeHeading), Kind::number},
                 {shown(CliTexts::kDataHeading), Kind::number},
                 {shown(CliTexts::kLastUsedHeading), Kind::number},
                 {shown(CliTexts::kSourceHeading), Kind::text},
                 {shown(CliTexts::kPathHeading), Kind::path}});
    std::int64_t total = 0;
    for (const AppInfo& app : apps) {
        total = checkedAdd(total, app.size.value_or(0));
        table.addRow({{PathText::forDisplay(app.name), Style::bold},
                      {Words::figures().bytes(app.size.value_or(0))},
                      {app.dataSize.value_or(0) > 0 ? Words::figures().bytes(*app.dataSize) : std::string()},
                      {app.lastUse ? Words::figures().date(app.lastUse->when) : std::string()},
                      {shown(kindOf(app.source)), Style::dim},
                      {Format::shownPath(app.path)}});
    }
    const Colours colours = Session::colours();
    const Message heading{CliTexts::kApps, {{"count", std::ssize(apps)}, {"size", Bytes{total}}}};
    Session::print(colours.styled(Style::bold, shown(heading)) + "\n\n" +
                   table.text(colours, Session::width()));
}

class AppsCommand final : public Command {
public:
    AppsCommand() : Command({"apps", CliTexts::kAppsSummary}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        Safety::refresh();
        const auto apps = Background::resultUnlessCancelled(
            session, [] { return CliTexts::kMeasuringApps; }, measuredApps);
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

#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Command.h"
#include "cli/InstalledApps.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "model/ByteCount.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace orlen {

namespace {

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
                      {std::string(InstalledApps::kindOf(app.source)), Style::dim},
                      {Format::shownPath(app.path)}});
    }
    const Colours colours = Session::colours();
    const std::string heading =
        Format::counted(static_cast<std::int64_t>(apps.size()), "application") + ", " + byteCount(total);
    Session::print(colours.styled(Style::bold, heading) + "\n\n" + table.text(colours, Session::width()));
}

class AppsCommand final : public Command {
public:
    [[nodiscard]] Description description() const override
    {
        return {"apps", "Show the installed applications with their sizes"};
    }

    void addOptions(CLI::App& /*app*/) override {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        Safety::refresh();
        const auto apps =
            InstalledApps::inBackground(session, Texts::kMeasuringApps, [](const std::stop_token& stop) {
                return InstalledApps::list(InstalledApps::Sizes::measured, stop);
            });
        if (!apps)
            return ExitStatus::interrupted;
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

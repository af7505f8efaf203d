#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/Command.h"
#include "cli/FindingTable.h"
#include "cli/JsonDocuments.h"
#include "cli/SmartScan.h"
#include "cli/Texts.h"
#include "platform/text/ByteCount.h"
#include "scan/ScanProgress.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace orlen {

namespace {

constexpr std::size_t kEntriesShown = 3;
constexpr std::size_t kFoldersShown = 3;

using Seconds = std::chrono::duration<double>;

std::string headline(const AppModel& model, const Colours& colours)
{
    const std::int64_t safe = model.results()->safeBytes();
    if (safe == 0)
        return colours.styled(Style::bold, Texts::kNothingSafe) + '\n';
    return colours.styled(Style::bold, "You can safely free ") +
           colours.styled(Style::green, byteCount(safe)) + '\n';
}

std::string figures(const AppModel& model, Seconds duration)
{
    return byteCount(model.results()->totalFound()) + " you could review in total · " +
           Format::counted(model.results()->scanProgress().files(), "file") + " examined in " +
           Format::duration(duration.count());
}

/// How many folders could not be read, and the first of them.
std::string unreadableLines(const AppModel& model, const Colours& colours)
{
    const Results::Unreadable& unreadable = model.results()->unreadableFolders();
    if (unreadable.count == 0)
        return {};
    std::string text = '\n' + AppTexts::unreadableFolders(unreadable.count) + '\n';
    const std::size_t shown = std::min(kFoldersShown, unreadable.paths.size());
    for (std::size_t i = 0; i < shown; ++i)
        text += colours.styled(Style::dim, "  " + Format::shownPath(unreadable.paths[i])) + '\n';
    if (const std::int64_t left = unreadable.count - static_cast<std::int64_t>(shown); left > 0)
        text += colours.styled(Style::dim, "  … and " + Format::grouped(left) + " more") + '\n';
    return text;
}

void printResults(const AppModel& model, Seconds duration)
{
    const Colours colours = Session::colours();
    std::string text =
        headline(model, colours) + colours.styled(Style::dim, figures(model, duration)) + "\n\n";
    if (model.results()->findings().empty())
        text.append(Texts::kNothingFound).append("\n");
    else
        text += FindingTable::of(model.results()->findings(), kEntriesShown).text(colours, Session::width());
    text += unreadableLines(model, colours);
    if (!model.results()->isFdaGranted())
        text.append("\n").append(Texts::kNoFullAccess).append("\n");
    if (model.results()->safeBytes() > 0)
        text += '\n' + colours.styled(Style::dim, Texts::kHowToClean) + '\n';
    Session::print(text);
}

class ScanCommand final : public Command {
public:
    ScanCommand() : Command({"scan", "Run a Smart Scan of the home folder and print the rated findings"}) {}

    void addOptions(CLI::App& app) override { SmartScan::addThresholdOption(app, m_thresholdMB); }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        AppModel model({AppModel::Startup::filesOnly});
        const auto duration = SmartScan::run(session, model, m_thresholdMB);
        if (!duration)
            return ExitStatus::interrupted;
        if (wantsJson())
            Session::printDocument(JsonDocuments::scan(model, *duration));
        else
            printResults(model, *duration);
        if (!model.isWriter())
            session.complain(Texts::kNoSnapshot);
        return ExitStatus::done;
    }

private:
    double m_thresholdMB = 500;
};

} // namespace

std::unique_ptr<Command> makeScanCommand()
{
    return std::make_unique<ScanCommand>();
}

} // namespace orlen

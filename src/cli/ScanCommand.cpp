#include "app/AppModel.h"
#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/FindingTable.h"
#include "cli/JsonDocuments.h"
#include "cli/SmartScan.h"
#include "model/Words.h"
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
        return colours.styled(Style::bold, shown(AppTexts::kNothingSafe)) + '\n';
    // The size has a colour of its own, wherever the language puts it.
    const std::string size = Words::figures().bytes(safe);
    const std::string sentence = shown(Message{AppTexts::kSafelyFree, {{"size", size}}});
    const std::size_t at = std::min(sentence.find(size), sentence.size());
    const std::size_t behind = std::min(at + size.size(), sentence.size());
    return colours.styled(Style::bold, sentence.substr(0, at)) +
           colours.styled(Style::green, sentence.substr(at, behind - at)) +
           colours.styled(Style::bold, sentence.substr(behind)) + '\n';
}

Message amounts(const AppModel& model, Seconds duration)
{
    return Message::joined(
        {{CliTexts::kToReview, {{"size", Bytes{model.results()->totalFound()}}}},
         {CliTexts::kExaminedIn, {{"count", model.results()->scanProgress().files()}, {"time", duration}}}},
        Several::Joint::facts);
}

/// How many folders could not be read, and the first of them.
std::string unreadableLines(const AppModel& model, const Colours& colours)
{
    const Results::Unreadable& unreadable = model.results()->unreadableFolders();
    if (unreadable.count == 0)
        return {};
    std::string text = '\n' + shown(AppTexts::unreadableFolders(unreadable.count)) + '\n';
    const std::size_t listed = std::min(kFoldersShown, unreadable.paths.size());
    for (std::size_t i = 0; i < listed; ++i)
        text += colours.styled(Style::dim, "  " + Format::shownPath(unreadable.paths[i])) + '\n';
    if (const std::int64_t left = unreadable.count - static_cast<std::int64_t>(listed); left > 0)
        text += colours.styled(Style::dim, "  " + shown(Message{CliTexts::kMore, {{"count", left}}})) + '\n';
    return text;
}

void printResults(const AppModel& model, Seconds duration)
{
    const Colours colours = Session::colours();
    std::string text =
        headline(model, colours) + colours.styled(Style::dim, shown(amounts(model, duration))) + "\n\n";
    if (model.results()->findings().empty())
        text += shown(CliTexts::kNothingFound) + '\n';
    else
        text += FindingTable::of(model.results()->findings(), kEntriesShown).text(colours, Session::width());
    text += unreadableLines(model, colours);
    if (!model.results()->isFdaGranted())
        text += '\n' + shown(CliTexts::kNoFullAccess) + '\n';
    if (model.results()->safeBytes() > 0)
        text += '\n' + colours.styled(Style::dim, shown(CliTexts::kHowToClean)) + '\n';
    Session::print(text);
}

class ScanCommand final : public Command {
public:
    ScanCommand() : Command({"scan", CliTexts::kScanSummary}) {}

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
            session.complain(CliTexts::kNoSnapshot);
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

#include "cli/SmartScan.h"

#include "app/AppModel.h"
#include "cli/CliTexts.h"
#include "cli/FolderSearch.h"
#include "cli/Session.h"
#include "model/Words.h"
#include "platform/files/Places.h"
#include "scan/ScanProgress.h"

#include <CLI/CLI.hpp>

namespace orlen::SmartScan {

namespace {

/// In bytes this fits in 64 bits with room to spare.
constexpr double kMostMegabytes = 1e12;

/// The parser's own range check accepts text that is not a number.
std::string checkedMegabytes(const std::string& text)
{
    double value = 0;
    if (CLI::detail::lexical_cast(text, value) && value >= 0 && value <= kMostMegabytes)
        return {};
    return shown(CliTexts::kNoMegabytes);
}

Message runningStep(const ScanProgress& progress)
{
    Message first;
    std::int64_t others = 0;
    for (const ScanStep& step : progress.steps()) {
        if (step.state != StepState::running)
            continue;
        if (first.empty())
            first = label(step.kind);
        else
            ++others;
    }
    if (others == 0)
        return first;
    return {CliTexts::kStepAndOthers, {{"step", within(first)}, {"others", others}}};
}

Message status(const ScanProgress& progress)
{
    // The storage is measured alongside the steps and may take longer.
    const Message step = runningStep(progress);
    return Message::joined({step.empty() ? CliTexts::kMeasuring : step, FolderSearch::status(progress)},
                           Several::Joint::facts);
}

} // namespace

void addThresholdOption(CLI::App& app, double& megabytes)
{
    app.add_option("--large-mb", megabytes, shown(CliTexts::kLargeHelp))
        ->type_name("N")
        ->check(checkedMegabytes)
        ->capture_default_str();
}

std::optional<std::chrono::duration<double>> run(Session& session, AppModel& model, double thresholdMB)
{
    if (!Places::current().isHomeUsable)
        session.complain(CliTexts::kUnusableHome);
    session.complain(model.notices());
    const auto started = std::chrono::steady_clock::now();
    model.results()->setLargeThresholdMB(thresholdMB);
    model.results()->startScan();
    session.run({[&] { return model.results()->phase() != Phase::scanning; },
                 [&] { model.results()->cancelScan(); },
                 [&] { return status(model.results()->scanProgress()); }});
    if (model.results()->phase() == Phase::idle) {
        session.complain(CliTexts::kCancelled);
        return std::nullopt;
    }
    return std::chrono::steady_clock::now() - started;
}

} // namespace orlen::SmartScan

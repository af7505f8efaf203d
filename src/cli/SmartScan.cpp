#include "cli/SmartScan.h"

#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/Session.h"
#include "cli/Texts.h"
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
    return "must be a number of megabytes from 0 on";
}

std::string runningStep(const ScanProgress& progress)
{
    std::string first;
    int others = 0;
    for (const ScanStep& step : progress.steps()) {
        if (step.state != StepState::running)
            continue;
        if (first.empty())
            first = label(step.kind);
        else
            ++others;
    }
    return others == 0 ? first : first + " +" + std::to_string(others);
}

std::string status(const ScanProgress& progress)
{
    // The storage is measured alongside the steps and may take longer.
    const std::string step = runningStep(progress);
    std::string line = step.empty() ? std::string(Texts::kMeasuring) : step;
    line += " · " + Format::counted(progress.files(), "file") + " examined";
    if (const std::string current = progress.current(); !current.empty())
        line += " · " + Format::shownPath(current);
    return line;
}

} // namespace

void addThresholdOption(CLI::App& app, double& megabytes)
{
    app.add_option("--large-mb", megabytes, "Megabytes from which a file counts as large")
        ->type_name("N")
        ->check(checkedMegabytes)
        ->capture_default_str();
}

std::optional<std::chrono::duration<double>> run(Session& session, AppModel& model, double thresholdMB)
{
    if (!Places::current().isHomeUsable)
        session.complain(Texts::kUnusableHome);
    session.complain(model.notices());
    const auto started = std::chrono::steady_clock::now();
    model.results()->setLargeThresholdMB(thresholdMB);
    model.results()->startScan();
    session.run({[&] { return model.results()->phase() != Phase::scanning; },
                 [&] { model.results()->cancelScan(); },
                 [&] { return status(model.results()->scanProgress()); }});
    if (model.results()->phase() == Phase::idle) {
        session.complain(Texts::kCancelled);
        return std::nullopt;
    }
    return std::chrono::steady_clock::now() - started;
}

} // namespace orlen::SmartScan

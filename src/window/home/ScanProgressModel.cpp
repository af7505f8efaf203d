#include "window/home/ScanProgressModel.h"

#include "scan/ScanEngine.h"
#include "window/lists/DisplayText.h"

#include <algorithm>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kPollInterval{75};

std::vector<ScanStep> pendingSteps()
{
    std::vector<ScanStep> steps;
    steps.reserve(ScanEngine::kSteps.size());
    for (const std::string_view label : ScanEngine::kSteps)
        steps.push_back({std::string(label), StepState::pending});
    return steps;
}

} // namespace

ScanProgressModel::ScanProgressModel(AppModel& app) : m_app(app)
{
    m_timer.setInterval(kPollInterval);
    connect(&m_timer, &QTimer::timeout, this, &ScanProgressModel::poll);
    connect(&m_app, &AppModel::phaseChanged, this, &ScanProgressModel::followPhase);
    followPhase();
}

void ScanProgressModel::followPhase()
{
    const bool isScanning = m_app.phase() == Phase::scanning;
    if (isScanning)
        m_timer.start();
    else
        m_timer.stop();
    if (m_isCancelling) {
        m_isCancelling = false;
        Q_EMIT cancellingChanged();
    }
    poll();
}

void ScanProgressModel::poll()
{
    const ScanProgress& progress = m_app.scanProgress();
    std::vector<ScanStep> steps = progress.steps();
    // The scan names its steps only once its worker runs.
    setSteps(steps.empty() ? pendingSteps() : std::move(steps));
    const QString current = DisplayText::shortPath(progress.current());
    if (m_files == progress.files() && m_current == current)
        return;
    m_files = progress.files();
    m_current = current;
    Q_EMIT changed();
}

void ScanProgressModel::setSteps(std::vector<ScanStep> steps)
{
    // The time of a step is shown when it is done.
    for (ScanStep& step : steps) {
        if (step.state != StepState::done)
            step.elapsed = {};
    }
    setRows(m_steps, std::move(steps), &ScanStep::label);
}

QString ScanProgressModel::files() const
{
    return DisplayText::number(m_files);
}

void ScanProgressModel::cancel()
{
    if (m_isCancelling || m_app.phase() != Phase::scanning)
        return;
    m_app.cancelScan();
    m_isCancelling = true;
    Q_EMIT cancellingChanged();
}

QVariant ScanProgressModel::value(std::size_t number, int role) const
{
    const ScanStep& step = m_steps[number];
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(step.label);
    case Role::state:
        return static_cast<int>(step.state);
    case Role::duration:
        return step.state == StepState::done ? DisplayText::duration(step.elapsed) : QString();
    }
    return {};
}

} // namespace orlen

#include "window/home/ScanProgressModel.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kPollInterval{75};

} // namespace

ScanProgressModel::ScanProgressModel(AppModel& app) : m_app(app), m_steps(ScanProgress().steps())
{
    m_timer.setInterval(kPollInterval);
    connect(&m_timer, &QTimer::timeout, this, &ScanProgressModel::poll);
    connect(m_app.results(), &Results::phaseChanged, this, &ScanProgressModel::followPhase);
    followPhase();
}

void ScanProgressModel::followPhase()
{
    const bool isScanning = m_app.results()->phase() == Phase::scanning;
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
    const ScanProgress& progress = m_app.results()->scanProgress();
    setSteps(progress.steps());
    const auto left = progress.photosLeft();
    const QString photosLeft = left ? DisplayText::text(AppTexts::timeLeft(*left)) : QString();
    const ScanProgress::Photos photos = progress.photos();
    if (m_photos != photos || m_photosLeft != photosLeft) {
        m_photos = photos;
        m_photosLeft = photosLeft;
        allChanged(Role::amount);
    }
    const QString current = DisplayText::shortPath(progress.current());
    const double share = progress.share();
    if (m_files == progress.files() && m_current == current && m_share == share)
        return;
    m_files = progress.files();
    m_share = share;
    m_current = current;
    Q_EMIT changed();
}

void ScanProgressModel::setSteps(const Steps& steps)
{
    for (std::size_t at = 0; at < steps.size(); ++at) {
        const bool isDifferent = m_steps[at].state != steps[at].state;
        m_steps[at] = steps[at];
        if (isDifferent)
            rowChanged(at);
    }
}

void ScanProgressModel::cancel()
{
    if (m_isCancelling || m_app.results()->phase() != Phase::scanning)
        return;
    m_app.results()->cancelScan();
    m_isCancelling = true;
    Q_EMIT cancellingChanged();
}

QVariant ScanProgressModel::value(std::size_t number, int role) const
{
    const ScanStep& step = m_steps[number];
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(label(step.kind));
    case Role::state:
        return static_cast<int>(step.state);
    case Role::duration:
        return step.state == StepState::done ? DisplayText::duration(step.elapsed) : QString();
    case Role::amount:
        if (step.kind != StepKind::photos || step.state != StepState::running || m_photos.all == 0)
            return QString();
        return DisplayText::facts(
            {DisplayText::text(
                 Message(WindowTexts::kDoneOf, {{"count", m_photos.done}, {"total", m_photos.all}})),
             m_photosLeft});
    }
    return {};
}

} // namespace orlen

#include "window/home/ScanProgressModel.h"

#include "app/AppTexts.h"
#include "window/lists/DisplayText.h"

#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kPollInterval{75};

/// What a long step has done of what there is to do, and how long the rest takes.
QString amountOf(const ScanProgress& progress, const ScanStep& step)
{
    const StepAmount amount = progress.amount(step.kind);
    if (step.state != StepState::running || amount.all == 0)
        return {};
    const auto left = progress.timeLeft(step.kind);
    return DisplayText::facts({step.kind == StepKind::photos
                                   ? DisplayText::progress(amount.done, amount.all)
                                   : DisplayText::text(AppTexts::bytesDone(amount.done, amount.all)),
                               left ? DisplayText::text(AppTexts::timeLeft(*left)) : QString()});
}

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
    setSteps(progress);
    const QString current = DisplayText::shortPath(progress.current());
    const double share = progress.share();
    if (m_files == progress.files() && m_current == current && m_share == share)
        return;
    m_files = progress.files();
    m_share = share;
    m_current = current;
    Q_EMIT changed();
}

void ScanProgressModel::setSteps(const ScanProgress& progress)
{
    const Steps steps = progress.steps();
    for (std::size_t at = 0; at < steps.size(); ++at) {
        QString amount = amountOf(progress, steps[at]);
        const bool isInOtherState = m_steps[at].state != steps[at].state;
        const bool hasOtherAmount = m_amounts[at] != amount;
        m_steps[at] = steps[at];
        m_amounts[at] = std::move(amount);
        if (isInOtherState)
            rowChanged(at);
        else if (hasOtherAmount)
            rowChanged(at, Role::amount);
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
        return m_amounts[number];
    }
    return {};
}

} // namespace orlen

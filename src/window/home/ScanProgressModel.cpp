#include "window/home/ScanProgressModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kPollInterval{75};

} // namespace

ScanProgressModel::ScanProgressModel(QObject* parent)
    : QAbstractListModel(parent), m_steps(ScanProgress().steps())
{
    m_timer.setInterval(kPollInterval);
    connect(&m_timer, &QTimer::timeout, this, &ScanProgressModel::poll);
}

void ScanProgressModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr)
        connect(m_app, &AppModel::phaseChanged, this, &ScanProgressModel::followPhase);
    Q_EMIT appChanged();
    followPhase();
}

void ScanProgressModel::followPhase()
{
    const bool isScanning = m_app != nullptr && m_app->phase() == Phase::scanning;
    if (isScanning)
        m_timer.start();
    else
        m_timer.stop();
    if (m_isCancelling) {
        m_isCancelling = false;
        Q_EMIT cancellingChanged();
    }
    if (m_app != nullptr)
        poll();
}

void ScanProgressModel::poll()
{
    const ScanProgress& progress = m_app->scanProgress();
    setSteps(progress.steps());
    const QString current = DisplayText::shortPath(progress.current());
    if (m_files == progress.files() && m_current == current)
        return;
    m_files = progress.files();
    m_current = current;
    Q_EMIT changed();
}

void ScanProgressModel::setSteps(const Steps& steps)
{
    for (std::size_t at = 0; at < steps.size(); ++at) {
        const bool isDifferent = m_steps[at].state != steps[at].state;
        m_steps[at] = steps[at];
        const QModelIndex changed = index(static_cast<int>(at));
        if (isDifferent)
            Q_EMIT dataChanged(changed, changed);
    }
}

QString ScanProgressModel::files() const
{
    return DisplayText::number(m_files);
}

void ScanProgressModel::cancel()
{
    if (m_isCancelling || m_app == nullptr || m_app->phase() != Phase::scanning)
        return;
    m_app->cancelScan();
    m_isCancelling = true;
    Q_EMIT cancellingChanged();
}

int ScanProgressModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_steps.size());
}

QVariant ScanProgressModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ScanStep& step = m_steps[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(label(step.kind));
    case Role::state:
        return static_cast<int>(step.state);
    case Role::duration:
        return step.state == StepState::done ? DisplayText::duration(step.elapsed) : QString();
    }
    return {};
}

QHash<int, QByteArray> ScanProgressModel::roleNames() const
{
    return {{static_cast<int>(Role::label), "label"},
            {static_cast<int>(Role::state), "state"},
            {static_cast<int>(Role::duration), "duration"}};
}

} // namespace orlen

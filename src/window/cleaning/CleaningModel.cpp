#include "window/cleaning/CleaningModel.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <QStringList>

#include <utility>

namespace orlen {

CleaningModel::CleaningModel(AppModel& app) : m_app(app), m_window(WindowState::of(app))
{
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &CleaningModel::follow);
    connect(m_app.cleanUps(), &CleanUps::cleaningChanged, this, &CleaningModel::follow);
    follow();
}

void CleaningModel::follow()
{
    const bool wasShown = std::exchange(m_isShown, m_app.cleanUps()->cleaning().has_value());
    if (!m_isShown)
        return;
    if (!wasShown) {
        m_isStopping = false;
        m_sinceShown.start();
    }
    const CleaningState& state = *m_app.cleanUps()->cleaning();
    const std::chrono::milliseconds shown(m_sinceShown.elapsed());
    if (state.finished && shown < m_window.overlayMinimum()) {
        m_end.start(m_window.overlayMinimum() - shown);
        return;
    }
    m_state = state;
    m_failures.setFailures(m_state.failures);
    Q_EMIT changed();
}

void CleaningModel::stop()
{
    m_isStopping = true;
    Q_EMIT changed();
    m_app.cleanUps()->cancelCleaning();
}

double CleaningModel::fraction() const
{
    if (m_state.finished)
        return 1;
    return m_state.total <= 0 ? 0 : static_cast<double>(m_state.done) / m_state.total;
}

QString CleaningModel::stillOn() const
{
    QStringList sentences;
    for (const std::string& service : m_state.servicesStillOn)
        sentences << DisplayText::text(AppTexts::stillOn(service));
    return sentences.join(u'\n');
}

QString CleaningModel::progressText() const
{
    return DisplayText::progress(m_state.done, m_state.total);
}

} // namespace orlen

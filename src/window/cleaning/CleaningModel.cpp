#include "window/cleaning/CleaningModel.h"

#include "window/findings/SheetTexts.h"
#include "window/lists/DisplayText.h"

#include <utility>

namespace orlen {

CleaningModel::CleaningModel(AppModel& app) : m_app(app)
{
    connect(&m_app, &AppModel::cleaningChanged, this, &CleaningModel::follow);
    follow();
}

void CleaningModel::follow()
{
    const bool wasShown = std::exchange(m_isShown, m_app.cleaning().has_value());
    if (!m_isShown)
        return;
    if (!wasShown)
        m_isStopping = false;
    m_state = *m_app.cleaning();
    m_failures.setFailures(m_state.failures);
    Q_EMIT changed();
}

void CleaningModel::stop()
{
    m_isStopping = true;
    Q_EMIT changed();
    m_app.cancelCleaning();
}

double CleaningModel::fraction() const
{
    if (m_state.finished)
        return 1;
    return m_state.total <= 0 ? 0 : static_cast<double>(m_state.done) / m_state.total;
}

QString CleaningModel::planTitle() const
{
    return DisplayText::path(m_state.planTitle);
}

QString CleaningModel::current() const
{
    return DisplayText::path(m_state.current);
}

QString CleaningModel::progressText() const
{
    return SheetTexts::progress(m_state.done, m_state.total);
}

QString CleaningModel::movedText() const
{
    return DisplayText::number(m_state.moved);
}

QString CleaningModel::failedText() const
{
    return DisplayText::number(m_state.failed);
}

QString CleaningModel::freedText() const
{
    return DisplayText::size(m_state.freed);
}

} // namespace orlen

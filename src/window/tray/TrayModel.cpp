#include "window/tray/TrayModel.h"

#include "window/lists/DisplayText.h"
#include "window/shell/WindowTexts.h"

namespace orlen {

void TrayModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr) {
        connect(m_app, &AppModel::breakdownChanged, this, &TrayModel::changed);
        connect(m_app, &AppModel::findingsChanged, this, &TrayModel::changed);
        connect(m_app, &AppModel::lastScanChanged, this, &TrayModel::changed);
    }
    Q_EMIT appChanged();
    Q_EMIT changed();
}

QString TrayModel::title() const
{
    if (m_app == nullptr || !m_app->isBreakdownReady())
        return WindowTexts::name();
    return WindowTexts::freeSpace(DisplayText::size(m_app->breakdown().free));
}

QString TrayModel::lastScanText() const
{
    if (m_app == nullptr || !m_app->lastScan())
        return {};
    return WindowTexts::lastScan(DisplayText::size(m_app->safeBytes()));
}

} // namespace orlen

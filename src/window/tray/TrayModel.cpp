#include "window/tray/TrayModel.h"

#include "window/lists/DisplayText.h"
#include "window/shell/WindowTexts.h"

namespace orlen {

TrayModel::TrayModel(AppModel& app) : m_app(app)
{
    connect(&m_app, &AppModel::breakdownChanged, this, &TrayModel::changed);
    connect(&m_app, &AppModel::findingsChanged, this, &TrayModel::changed);
    connect(&m_app, &AppModel::lastScanChanged, this, &TrayModel::changed);
}

QString TrayModel::title() const
{
    if (!m_app.isBreakdownReady())
        return WindowTexts::name();
    return WindowTexts::freeSpace(DisplayText::size(m_app.breakdown().free));
}

QString TrayModel::lastScanText() const
{
    if (!m_app.lastScan())
        return {};
    return WindowTexts::lastScan(DisplayText::size(m_app.safeBytes()));
}

} // namespace orlen

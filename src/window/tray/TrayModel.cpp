#include "window/tray/TrayModel.h"

#include "window/lists/DisplayText.h"
#include "window/shell/WindowTexts.h"

namespace orlen {

TrayModel::TrayModel(AppModel& app) : m_app(app)
{
    connect(m_app.storage(), &Storage::breakdownChanged, this, &TrayModel::changed);
    connect(m_app.results(), &Results::findingsChanged, this, &TrayModel::changed);
    connect(m_app.results(), &Results::lastScanChanged, this, &TrayModel::changed);
}

QString TrayModel::title() const
{
    if (!m_app.storage()->isBreakdownReady())
        return WindowTexts::name();
    return WindowTexts::freeSpace(DisplayText::size(m_app.storage()->breakdown().free));
}

QString TrayModel::lastScanText() const
{
    if (!m_app.results()->lastScan())
        return {};
    return WindowTexts::lastScan(DisplayText::size(m_app.results()->safeBytes()));
}

} // namespace orlen

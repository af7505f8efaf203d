#include "window/tray/TrayModel.h"

#include "window/lists/DisplayText.h"

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
        return QStringLiteral("Orlen");
    return QStringLiteral("%1 free").arg(DisplayText::size(m_app.storage()->breakdown().free));
}

QString TrayModel::lastScanText() const
{
    if (!m_app.results()->lastScan())
        return {};
    return QStringLiteral("Last scan: you can safely free %1")
        .arg(DisplayText::size(m_app.results()->safeBytes()));
}

} // namespace orlen

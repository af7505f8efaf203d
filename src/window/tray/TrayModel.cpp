#include "window/tray/TrayModel.h"

#include "window/WindowTexts.h"
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
    return DisplayText::text(
        Message(WindowTexts::kFree, {{"size", Bytes{m_app.storage()->breakdown().free}}}));
}

QString TrayModel::lastScanText() const
{
    if (!m_app.results()->lastScan())
        return {};
    return DisplayText::text(
        Message(WindowTexts::kLastScan, {{"size", Bytes{m_app.results()->safeBytes()}}}));
}

QString TrayModel::openLabel()
{
    return DisplayText::text(WindowTexts::kOpenOrlen);
}

QString TrayModel::quitLabel()
{
    return DisplayText::text(WindowTexts::kQuit);
}

} // namespace orlen

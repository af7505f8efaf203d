#include "window/shell/Navigation.h"

#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <QSettings>

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

const QString kOnboarded = QStringLiteral("onboarded");

} // namespace

Navigation::Navigation(AppModel& app) : m_app(app)
{
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &Navigation::sheetChanged);
    connect(m_app.cleanUps(), &CleanUps::cleaningChanged, this, &Navigation::cleaningChanged);
    connect(&WindowState::of(m_app), &WindowState::requestedScreenChanged, this, &Navigation::followRequest);
    followRequest();
}

bool Navigation::isOnboarded()
{
    return QSettings().value(kOnboarded, false).toBool();
}

void Navigation::finishOnboarding()
{
    QSettings().setValue(kOnboarded, true);
    Q_EMIT onboardedChanged();
}

void Navigation::setScreen(Screens::Screen screen)
{
    if (std::exchange(m_screen, screen) != screen)
        Q_EMIT screenChanged();
}

Navigation::Sheet Navigation::sheet() const
{
    if (!WindowState::of(m_app).sheet())
        return NoSheet;
    return std::holds_alternative<orlen::PlanSheet>(*WindowState::of(m_app).sheet()) ? PlanSheet
                                                                                     : FindingSheet;
}

QString Navigation::findingId() const
{
    if (sheet() != FindingSheet)
        return {};
    return DisplayText::text(std::get<orlen::FindingSheet>(*WindowState::of(m_app).sheet()).findingId);
}

void Navigation::showFinding(const QString& id)
{
    const std::string wanted = id.toStdString();
    const auto& findings = m_app.results()->findings();
    if (std::any_of(findings.begin(), findings.end(), [&](const Finding& f) { return f.id() == wanted; }))
        WindowState::of(m_app).setSheet(orlen::FindingSheet{wanted});
}

void Navigation::closeSheet()
{
    WindowState::of(m_app).setSheet(std::nullopt);
}

void Navigation::showFolder(const QString& code)
{
    m_folder = code;
    setScreen(Screens::DiskMap);
    Q_EMIT folderRequested();
}

void Navigation::followRequest()
{
    if (const auto requested = WindowState::of(m_app).requestedScreen()) {
        setScreen(*requested);
        WindowState::of(m_app).setRequestedScreen(std::nullopt);
    }
}

} // namespace orlen

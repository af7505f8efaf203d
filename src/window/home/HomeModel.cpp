#include "window/home/HomeModel.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/Remembered.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace orlen {

namespace {

constexpr std::int64_t kMegabyte = 1'000'000;
constexpr std::chrono::seconds kAgingInterval{30};
constexpr std::array<int, 5> kThresholds{100, 250, 500, 1000, 2000}; // decimal megabytes

QString megabytes(double count)
{
    return DisplayText::size(static_cast<std::int64_t>(count * static_cast<double>(kMegabyte)));
}

QString ageOf(TimePoint::duration time)
{
    using namespace std::chrono;
    if (time < minutes(1))
        return DisplayText::text(WindowTexts::kScannedNow);
    if (time < hours(1))
        return DisplayText::counted(duration_cast<minutes>(time).count(), WindowTexts::kScannedMinutes);
    if (time < days(1))
        return DisplayText::counted(duration_cast<hours>(time).count(), WindowTexts::kScannedHours);
    return DisplayText::counted(duration_cast<days>(time).count(), WindowTexts::kScannedDays);
}

QString outdatedBy(Freshness freshness)
{
    switch (freshness) {
    case Freshness::fresh:
        return {};
    case Freshness::otherThreshold:
        return DisplayText::text(WindowTexts::kOtherThreshold);
    case Freshness::diskChanged:
        return DisplayText::text(WindowTexts::kDiskChanged);
    case Freshness::old:
        return DisplayText::text(WindowTexts::kOldResults);
    }
    return {};
}

} // namespace

HomeModel::HomeModel(AppModel& app) : m_app(app)
{
    connect(m_app.results(), &Results::phaseChanged, this, &HomeModel::phaseChanged);
    connect(m_app.results(), &Results::findingsChanged, this, &HomeModel::countResults);
    connect(m_app.results(), &Results::findingsChanged, this, &HomeModel::countSelection);
    connect(m_app.results(), &Results::selectionChanged, this, &HomeModel::countSelection);
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &HomeModel::countSelection);
    connect(m_app.results(), &Results::largeThresholdMBChanged, this, &HomeModel::thresholdChanged);
    connect(m_app.results(), &Results::largeThresholdMBChanged, this, &HomeModel::updateAge);
    connect(m_app.results(), &Results::lastScanChanged, this, &HomeModel::updateAge);
    connect(m_app.storage(), &Storage::breakdownChanged, this, &HomeModel::updateAge);
    connect(&m_aging, &QTimer::timeout, this, &HomeModel::updateAge);
    m_aging.start(kAgingInterval);
    updateAge();
    countResults();
    countSelection();
}

void HomeModel::updateAge()
{
    const TimePoint now = std::chrono::system_clock::now();
    const auto& scanned = m_app.results()->lastScan();
    const QString age = scanned ? ageOf(now - *scanned) : QString();
    const QString outdated = outdatedBy(m_app.results()->freshness(now));
    if (m_ageText == age && m_outdatedText == outdated)
        return;
    m_ageText = age;
    m_outdatedText = outdated;
    Q_EMIT ageChanged();
}

bool HomeModel::hasFindings() const
{
    return std::ranges::any_of(m_app.results()->findings(), &Finding::isNotable);
}

void HomeModel::countResults()
{
    m_safeBytes = m_app.results()->safeBytes();
    m_totalBytes = m_app.results()->totalFound();
    Q_EMIT resultsChanged();
}

void HomeModel::countSelection()
{
    // The figure is hidden behind a sheet while entries, perhaps 100,000, are checked one by one.
    if (WindowState::of(m_app).sheet())
        return;
    m_selected = m_app.results()->selectedAmount();
    m_isSafeSelected = m_app.results()->isSafeSelected();
    Q_EMIT selectionChanged();
}

QString HomeModel::heroText() const
{
    if (!hasSafe())
        return DisplayText::text(AppTexts::kNothingSafe);
    return DisplayText::text(Message(AppTexts::kSafelyFree, {{"size", Bytes{m_safeBytes}}}));
}

QString HomeModel::selectedText() const
{
    return DisplayText::facts(
        {DisplayText::counted(m_selected.items, WindowTexts::kItems), DisplayText::size(m_selected.bytes)});
}

QString HomeModel::unreadableText() const
{
    const std::int64_t count = m_app.results()->unreadableFolders().count;
    return count == 0 ? QString() : DisplayText::text(AppTexts::unreadableFolders(count));
}

QString HomeModel::unreadableFolders() const
{
    QStringList lines;
    for (const std::string& path : m_app.results()->unreadableFolders().paths)
        lines << DisplayText::shortPath(path);
    return lines.join('\n');
}

QStringList HomeModel::thresholds()
{
    QStringList texts;
    for (const int threshold : kThresholds)
        texts << megabytes(threshold);
    return texts;
}

int HomeModel::threshold() const
{
    const double chosen = m_app.results()->largeThresholdMB();
    const auto* found = std::find(kThresholds.begin(), kThresholds.end(), chosen);
    return found == kThresholds.end() ? -1 : static_cast<int>(found - kThresholds.begin());
}

void HomeModel::setThreshold(int index)
{
    if (index < 0 || index >= static_cast<int>(kThresholds.size()))
        return;
    m_app.results()->setLargeThresholdMB(kThresholds.at(static_cast<std::size_t>(index)));
    Remembered::setLargeThresholdMB(m_app.results()->largeThresholdMB());
}

QString HomeModel::thresholdText() const
{
    return megabytes(m_app.results()->largeThresholdMB());
}

void HomeModel::review()
{
    if (hasSelection())
        WindowState::of(m_app).setSheet(PlanSheet{m_app.results()->scanPlan()});
}

} // namespace orlen

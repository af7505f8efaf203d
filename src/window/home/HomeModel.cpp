#include "window/home/HomeModel.h"

#include "app/AppTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <array>

namespace orlen {

namespace {

constexpr std::int64_t kMegabyte = 1'000'000;
constexpr std::array<int, 5> kThresholds{100, 250, 500, 1000, 2000}; // decimal megabytes

QString megabytes(double count)
{
    return DisplayText::size(static_cast<std::int64_t>(count * static_cast<double>(kMegabyte)));
}

} // namespace

HomeModel::HomeModel(AppModel& app) : m_app(app)
{
    connect(m_app.results(), &Results::phaseChanged, this, &HomeModel::phaseChanged);
    connect(m_app.results(), &Results::findingsChanged, this, &HomeModel::countResults);
    connect(m_app.results(), &Results::selectionChanged, this, &HomeModel::countSelection);
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &HomeModel::countSelection);
    connect(m_app.results(), &Results::largeThresholdMBChanged, this, &HomeModel::thresholdChanged);
    countResults();
    countSelection();
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
    m_selectedCount = m_app.results()->selectedAmount().items;
    Q_EMIT selectionChanged();
}

QString HomeModel::heroText() const
{
    if (!hasSafe())
        return DisplayText::text(AppTexts::kNothingSafe);
    return DisplayText::text(Message(AppTexts::kSafelyFree, {{"size", Bytes{m_safeBytes}}}));
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
    if (index >= 0 && index < static_cast<int>(kThresholds.size()))
        m_app.results()->setLargeThresholdMB(kThresholds.at(static_cast<std::size_t>(index)));
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

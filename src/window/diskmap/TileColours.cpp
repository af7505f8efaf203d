#include "window/diskmap/TileColours.h"

#include "clean/Safety.h"
#include "insight/InsightTexts.h"
#include "window/WindowTexts.h"
#include "window/diskmap/TileText.h"
#include "window/lists/DisplayText.h"
#include "window/lists/Remembered.h"

#include <algorithm>
#include <chrono>

namespace orlen {

namespace {

constexpr std::chrono::days kGrowthPeriod{30};
const QString kChoice = QStringLiteral("diskMapColours");
/// In the order of the enumeration, as they are kept in the settings.
const QStringList kMeanings{QStringLiteral("kind"), QStringLiteral("age"), QStringLiteral("growth"),
                            QStringLiteral("rating")};

} // namespace

TileColours::TileColours(AppModel& app) : m_app(app)
{
    m_wish = static_cast<Meaning>(std::max<qsizetype>(0, kMeanings.indexOf(Remembered::choice(kChoice))));
    connect(m_app.results(), &Results::findingsChanged, this, &TileColours::followFindings);
    connect(&m_app.storage()->folders(), &FolderHistory::changed, this, &TileColours::followReadings);
    followReadings();
}

void TileColours::followFindings()
{
    m_rated.reset();
    if (m_wish == Rating)
        Q_EMIT changed();
}

void TileColours::followReadings()
{
    const std::vector<FolderReading>& readings = m_app.storage()->folders().readings();
    m_since.reset();
    m_changes.clear();
    const auto pair =
        readings.empty() ? std::nullopt : ReadingPair::over(readings, readings.back().date - kGrowthPeriod);
    if (pair) {
        m_since = ReadingPair::start(pair->before.date, pair->after.date);
        m_changes = pair->changes();
    }
    Q_EMIT changed();
}

TileColours::Meaning TileColours::meaning() const
{
    return m_wish == Growth && !m_since ? Kind : m_wish;
}

void TileColours::choose(Meaning meaning)
{
    if (meaning == m_wish || (meaning == Growth && !m_since))
        return;
    m_wish = meaning;
    Remembered::setChoice(kChoice, kMeanings[meaning]);
    Q_EMIT changed();
}

QString TileColours::growthRefusal() const
{
    return m_since ? QString() : DisplayText::text(InsightTexts::kNothingToCompare);
}

QString TileColours::note() const
{
    switch (meaning()) {
    case Growth:
        return DisplayText::text(Message(WindowTexts::kChangedSince, {{"date", *m_since}}));
    case Rating:
        return m_app.results()->lastScan() ? QString() : DisplayText::text(WindowTexts::kRatingsNeedScan);
    case Kind:
    case Age:
        break;
    }
    return {};
}

QStringList TileColours::legend() const
{
    switch (meaning()) {
    case Kind:
        return TileText::kinds();
    case Age:
        return TileText::ages();
    case Growth:
        return TileText::growths();
    case Rating:
        return TileText::advice();
    }
    return {};
}

QStringList TileColours::symbols() const
{
    return meaning() == Rating ? TileText::adviceSymbols() : QStringList();
}

std::optional<std::int64_t> TileColours::growthOf(const TreeNode& node) const
{
    const auto found = node.isDir && !node.isOther ? m_changes.find(node.path) : m_changes.end();
    return found == m_changes.end() ? std::nullopt : std::optional(found->second);
}

/// A folder in which something may move is not protected here, even if it may not move itself.
TileShade::Advice TileColours::adviceOf(const TreeNode& node) const
{
    if (node.isOther)
        return TileShade::Advice::unknown;
    if (node.isDir ? Safety::protectsContents(node.path) : Safety::isProtected(node.path))
        return TileShade::Advice::isProtected;
    if (!m_rated)
        m_rated.emplace(m_app.results()->findings());
    return TileShade::adviceOf(m_rated->ratingOf(node.path, node.size));
}

int TileColours::shadeOf(const TreeNode& node) const
{
    switch (meaning()) {
    case Kind:
        break;
    case Age:
        return static_cast<int>(
            TileShade::ageOf(node.isOther ? std::nullopt : node.newest, std::chrono::system_clock::now()));
    case Growth:
        return static_cast<int>(TileShade::growthOf(growthOf(node)));
    case Rating:
        return static_cast<int>(adviceOf(node));
    }
    const bool isUnread = node.reading == TreeNode::Reading::none;
    return static_cast<int>(isUnread ? TileText::Kind::rest : TileText::kindOf(node));
}

QString TileColours::fact(const TreeNode& node, int shade) const
{
    switch (meaning()) {
    case Kind:
        break;
    case Age:
        return node.newest && !node.isOther ? DisplayText::modified(*node.newest) : QString();
    case Growth:
        return TileText::change(growthOf(node));
    case Rating:
        return node.isOther ? QString() : TileText::advice().value(shade);
    }
    return {};
}

} // namespace orlen

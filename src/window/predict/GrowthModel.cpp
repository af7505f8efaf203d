#include "window/predict/GrowthModel.h"

#include "insight/InsightTexts.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"

#include <chrono>
#include <utility>

namespace orlen {

namespace {

constexpr std::size_t kMostRows = 10;

std::optional<Growth> growthOver(GrowthModel::Period period, const std::vector<FolderReading>& readings)
{
    using std::chrono::days;
    if (period == GrowthModel::LastScan || readings.empty())
        return Growth::sinceLastScan(readings);
    const days span(period == GrowthModel::Week ? 7 : 30);
    return Growth::between(readings, readings.back().date - span);
}

bool isInHome(const std::string& path)
{
    return PathText::isAtOrBelow(path, Places::current().home);
}

} // namespace

GrowthModel::GrowthModel(AppModel& app) : m_app(app)
{
    connect(&m_app.storage()->folders(), &FolderHistory::changed, this, &GrowthModel::update);
    connect(this, &GrowthModel::periodChanged, this, &GrowthModel::update);
    update();
}

void GrowthModel::update()
{
    m_growth = growthOver(m_period, m_app.storage()->folders().readings());
    std::vector<Growth::Folder> rows;
    if (m_growth)
        rows = std::exchange(m_growth->folders, {});
    if (rows.size() > kMostRows)
        rows.resize(kMostRows);
    setRows(m_rows, std::move(rows), [](const Growth::Folder& row) { return row.path; });
    // Each bar is scaled to the longest.
    allChanged(Role::extent);
    Q_EMIT changed();
}

QString GrowthModel::sentence() const
{
    if (!m_growth)
        return DisplayText::text(InsightTexts::kNothingToCompare);
    return DisplayText::text(Message(m_rows.empty() ? InsightTexts::kNothingGrew : InsightTexts::kGrewSince,
                                     {{"date", m_growth->start()}}));
}

std::optional<RowSubject> GrowthModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    const std::string& path = m_rows[static_cast<std::size_t>(row)].path;
    return RowSubject{.path = path, .isOffered = isInHome(path) && path != Places::current().home};
}

QVariant GrowthModel::value(std::size_t number, int role) const
{
    const Growth::Folder& folder = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::nameOf(folder.path);
    case Role::place:
        return DisplayText::shortPath(folder.path);
    case Role::growth:
        return DisplayText::text(Message(WindowTexts::kGrown, {{"size", Bytes{folder.bytes()}}}));
    case Role::extent:
        return static_cast<double>(folder.bytes()) / static_cast<double>(m_rows.front().bytes());
    case Role::code:
        return isInHome(folder.path) ? PathCode::of(folder.path) : QString();
    }
    return {};
}

} // namespace orlen

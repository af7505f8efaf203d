#include "window/home/FindingListModel.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RatingValue.h"
#include "window/shell/WindowState.h"

#include <algorithm>

namespace orlen {

FindingListModel::FindingListModel(AppModel& app) : m_app(app)
{
    connect(m_app.results(), &Results::findingsChanged, this, &FindingListModel::followFindings);
    connect(m_app.results(), &Results::selectionChanged, this, &FindingListModel::followSelection);
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &FindingListModel::followSelection);
    followFindings();
}

void FindingListModel::followFindings()
{
    std::vector<Row> rows;
    for (const Finding& finding : m_app.results()->findings()) {
        if (!finding.isNotable())
            continue;
        rows.push_back({finding.kind, finding.rating, finding.cleanable, finding.totalSize(),
                        static_cast<std::int64_t>(finding.items.size()),
                        m_app.results()->selectedSize(finding)});
    }
    setRows(m_rows, std::move(rows), [](const Row& row) { return rawValue(row.kind); });
}

void FindingListModel::followSelection()
{
    // The cards are hidden behind a sheet while entries, perhaps 100,000, are checked one by one.
    if (WindowState::of(m_app).sheet())
        return;
    const auto& findings = m_app.results()->findings();
    for (std::size_t at = 0; at < m_rows.size(); ++at) {
        const auto finding = std::ranges::find(findings, m_rows[at].kind, &Finding::kind);
        if (finding == findings.end())
            continue;
        const std::int64_t size = m_app.results()->selectedSize(*finding);
        if (m_rows[at].selectedSize == size)
            continue;
        m_rows[at].selectedSize = size;
        rowChanged(at, Role::selected);
    }
}

QVariant FindingListModel::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::findingId:
        return DisplayText::text(rawValue(row.kind));
    case Role::title:
        return DisplayText::text(meta(row.kind).title);
    case Role::symbol:
        return DisplayText::text(meta(row.kind).symbol);
    case Role::tone:
        return DisplayText::colour(meta(row.kind).category);
    case Role::rating:
        return QVariant::fromValue(RatingValue(row.rating));
    case Role::size:
        return DisplayText::size(row.size);
    case Role::count:
        return DisplayText::counted(row.count, WindowTexts::kItems);
    case Role::selected:
        return row.selectedSize > 0 ? DisplayText::size(row.selectedSize) : QString();
    case Role::cleanable:
        return row.isCleanable;
    }
    return {};
}

} // namespace orlen

#include "window/home/FindingListModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>

namespace orlen {

void FindingListModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr) {
        connect(m_app, &AppModel::findingsChanged, this, &FindingListModel::followFindings);
        connect(m_app, &AppModel::selectionChanged, this, &FindingListModel::followSelection);
        connect(m_app, &AppModel::sheetChanged, this, &FindingListModel::followSelection);
    }
    Q_EMIT appChanged();
    followFindings();
}

std::vector<FindingListModel::Row> FindingListModel::currentRows() const
{
    std::vector<Row> rows;
    if (m_app == nullptr)
        return rows;
    for (const Finding& finding : m_app->findings()) {
        rows.push_back({finding.kind, finding.rating, finding.cleanable,
                        finding.reason.empty() ? finding.explanation : finding.reason, finding.totalSize(),
                        static_cast<std::int64_t>(finding.items.size()), m_app->selectedSize(finding)});
    }
    return rows;
}

void FindingListModel::followFindings()
{
    std::vector<Row> rows = currentRows();
    auto from = m_rows.cbegin();
    const bool onlyFewer = std::all_of(rows.begin(), rows.end(), [&](const Row& row) {
        from = std::find_if(from, m_rows.cend(), [&](const Row& old) { return old.kind == row.kind; });
        if (from == m_rows.cend())
            return false;
        ++from;
        return true;
    });
    if (!onlyFewer) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    removeMissing(rows);
    updateDifferent(std::move(rows));
}

void FindingListModel::removeMissing(const std::vector<Row>& rows)
{
    for (int row = rowCount() - 1; row >= 0; --row) {
        const FindingKind kind = m_rows[static_cast<std::size_t>(row)].kind;
        if (std::any_of(rows.begin(), rows.end(), [&](const Row& kept) { return kept.kind == kind; }))
            continue;
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
    }
}

void FindingListModel::updateDifferent(std::vector<Row> rows)
{
    for (std::size_t at = 0; at < rows.size(); ++at) {
        if (m_rows[at] == rows[at])
            continue;
        m_rows[at] = std::move(rows[at]);
        const QModelIndex changed = index(static_cast<int>(at));
        Q_EMIT dataChanged(changed, changed);
    }
}

void FindingListModel::followSelection()
{
    // A sheet covers the cards while its entries are checked one by one, perhaps in a list of 100,000.
    if (m_app->sheet() || m_rows.size() != m_app->findings().size())
        return;
    for (std::size_t at = 0; at < m_rows.size(); ++at) {
        const std::int64_t size = m_app->selectedSize(m_app->findings()[at]);
        if (m_rows[at].selectedSize == size)
            continue;
        m_rows[at].selectedSize = size;
        const QModelIndex changed = index(static_cast<int>(at));
        Q_EMIT dataChanged(changed, changed, {static_cast<int>(Role::selected)});
    }
}

int FindingListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FindingListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
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
        return DisplayText::text(rawValue(row.rating));
    case Role::ratingLabel:
        return DisplayText::text(label(row.rating));
    case Role::ratingSymbol:
        return DisplayText::text(symbol(row.rating));
    case Role::size:
        return DisplayText::size(row.size);
    case Role::count:
        return DisplayText::items(row.count);
    case Role::selected:
        return row.selectedSize > 0 ? DisplayText::size(row.selectedSize) : QString();
    case Role::cleanable:
        return row.isCleanable;
    case Role::reason:
        return DisplayText::text(row.reason);
    }
    return {};
}

QHash<int, QByteArray> FindingListModel::roleNames() const
{
    return {{static_cast<int>(Role::findingId), "findingId"},
            {static_cast<int>(Role::title), "title"},
            {static_cast<int>(Role::symbol), "symbol"},
            {static_cast<int>(Role::tone), "tone"},
            {static_cast<int>(Role::rating), "rating"},
            {static_cast<int>(Role::ratingLabel), "ratingLabel"},
            {static_cast<int>(Role::ratingSymbol), "ratingSymbol"},
            {static_cast<int>(Role::size), "size"},
            {static_cast<int>(Role::count), "count"},
            {static_cast<int>(Role::selected), "selected"},
            {static_cast<int>(Role::cleanable), "cleanable"},
            {static_cast<int>(Role::reason), "reason"}};
}

} // namespace orlen

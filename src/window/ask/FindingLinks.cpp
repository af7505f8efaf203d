#include "window/ask/FindingLinks.h"

#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

FindingLinks::FindingLinks(const AppModel& app, std::vector<std::string> ids, QObject* parent)
    : QAbstractListModel(parent), m_app(app), m_ids(std::move(ids))
{
    connect(&m_app, &AppModel::findingsChanged, this, &FindingLinks::update);
    update();
}

void FindingLinks::update()
{
    std::vector<Row> rows;
    for (const std::string& id : m_ids) {
        const auto found = std::ranges::find(m_app.findings(), id, &Finding::id);
        if (found != m_app.findings().end())
            rows.push_back({found->kind, found->totalSize()});
    }
    if (std::ranges::equal(rows, m_rows, {}, &Row::kind, &Row::kind)) {
        m_rows = std::move(rows);
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1),
                               {static_cast<int>(Role::size)});
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int FindingLinks::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FindingLinks::data(const QModelIndex& index, int role) const
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
    case Role::size:
        return DisplayText::size(row.bytes);
    }
    return {};
}

QHash<int, QByteArray> FindingLinks::roleNames() const
{
    return {{static_cast<int>(Role::findingId), "findingId"},
            {static_cast<int>(Role::title), "title"},
            {static_cast<int>(Role::symbol), "symbol"},
            {static_cast<int>(Role::tone), "tone"},
            {static_cast<int>(Role::size), "size"}};
}

} // namespace orlen

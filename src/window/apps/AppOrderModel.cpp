#include "window/apps/AppOrderModel.h"

#include "window/apps/AppInfoTexts.h"
#include "window/lists/DisplayText.h"

namespace orlen {

AppOrderModel::AppOrderModel(QObject* parent) : QSortFilterProxyModel(parent)
{
    sort(0);
}

void AppOrderModel::setList(AppListModel* list)
{
    if (m_list == list)
        return;
    m_list = list;
    setSourceModel(list);
    Q_EMIT listChanged();
}

void AppOrderModel::setQuery(const QString& query)
{
    if (m_query == query)
        return;
    m_query = query;
    m_search = WordSearch(query);
    invalidateRowsFilter();
    Q_EMIT queryChanged();
}

void AppOrderModel::setOrder(Order order)
{
    if (m_order == order)
        return;
    m_order = order;
    invalidate();
    Q_EMIT orderChanged();
}

int AppOrderModel::listRow(int row) const
{
    return mapToSource(index(row, 0)).row();
}

bool AppOrderModel::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    const AppInfo& app = appAt(row);
    const QString text = DisplayText::path(app.name) + u'\n' + AppInfoTexts::origin(app);
    return m_search.fits(text);
}

const AppInfo& AppOrderModel::appAt(int listRow) const
{
    return m_list->apps()[static_cast<std::size_t>(listRow)];
}

/// The source list is already sorted by name.
bool AppOrderModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto bytes = [this](const QModelIndex& index) { return appAt(index.row()).size.value_or(-1); };
    if (m_order == BySize && bytes(left) != bytes(right))
        return bytes(left) > bytes(right);
    return left.row() < right.row();
}

} // namespace orlen

#include "window/apps/AppOrderModel.h"

#include <QStringList>

#include <algorithm>

namespace orlen {

namespace {

QString textOf(const QModelIndex& index, AppListModel::Role role)
{
    return index.data(static_cast<int>(role)).toString();
}

double bytesOf(const QModelIndex& index)
{
    return index.data(static_cast<int>(AppListModel::Role::bytes)).toDouble();
}

} // namespace

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

bool AppOrderModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_query.isEmpty())
        return true;
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const QString text =
        textOf(index, AppListModel::Role::name) + u'\n' + textOf(index, AppListModel::Role::origin);
    const QStringList words = m_query.split(u' ', Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// The list's own order is by name.
bool AppOrderModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (m_order == BySize && bytesOf(left) != bytesOf(right))
        return bytesOf(left) > bytesOf(right);
    return left.row() < right.row();
}

} // namespace orlen

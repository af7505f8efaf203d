#include "window/startup/StartupOrderModel.h"

#include "tools/ToolsTexts.h"

#include <QStringList>

namespace orlen {

namespace {

using Role = StartupListModel::Role;

} // namespace

StartupOrderModel::StartupOrderModel(QObject* parent) : QSortFilterProxyModel(parent)
{
    sort(0);
}

void StartupOrderModel::setList(StartupListModel* list)
{
    if (m_list == list)
        return;
    m_list = list;
    setSourceModel(list);
    Q_EMIT listChanged();
}

void StartupOrderModel::setFilter(const QString& filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;
    m_search = WordSearch(filter);
    invalidateRowsFilter();
    Q_EMIT filterChanged();
}

void StartupOrderModel::sortBy(int order)
{
    m_isReversed = order == m_order && !m_isReversed;
    m_order = order == ByName ? ByName : ByKind;
    invalidate();
    Q_EMIT orderChanged();
}

int StartupOrderModel::listRow(int row) const
{
    return mapToSource(index(row, 0)).row();
}

void StartupOrderModel::toggle(int row)
{
    if (m_list != nullptr)
        m_list->toggle(listRow(row));
}

QString StartupOrderModel::text(const QModelIndex& item, Role role) const
{
    return item.data(static_cast<int>(role)).toString();
}

bool StartupOrderModel::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    const QModelIndex item = m_list->index(row);
    const QStringList all = {text(item, Role::name), text(item, Role::details), text(item, Role::hint)};
    return m_search.fits(all.join(u'\n'));
}

bool StartupOrderModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const LaunchItem& one = m_list->items()[static_cast<std::size_t>(left.row())];
    const LaunchItem& other = m_list->items()[static_cast<std::size_t>(right.row())];
    // Each person's group stays together, whatever the order.
    if (one.scope != other.scope)
        return one.scope == ToolsTexts::kYourAccount;
    if (m_order == ByKind && one.kind() != other.kind())
        return (one.kind() < other.kind()) != m_isReversed;
    const int names = QString::localeAwareCompare(text(left, Role::name), text(right, Role::name));
    if (names == 0)
        return left.row() < right.row();
    const bool isReversedByName = m_order == ByName && m_isReversed;
    return (names < 0) != isReversedByName;
}

} // namespace orlen

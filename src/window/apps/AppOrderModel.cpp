#include "window/apps/AppOrderModel.h"

#include "window/WindowTexts.h"
#include "window/apps/AppInfoTexts.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace orlen {

AppOrderModel::AppOrderModel(QObject* parent) : QSortFilterProxyModel(parent)
{
    sort(0);
}

void AppOrderModel::setList(AppListModel* list)
{
    if (m_list == list)
        return;
    if (m_list != nullptr)
        disconnect(m_list, &AppListModel::summaryChanged, this, &AppOrderModel::findSources);
    m_list = list;
    setSourceModel(list);
    if (m_list != nullptr) {
        connect(m_list, &AppListModel::summaryChanged, this, &AppOrderModel::findSources);
        findSources();
    }
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

/// A kind of which none is left is shown no more.
void AppOrderModel::findSources()
{
    std::set<AppSource> found;
    for (const AppInfo& app : m_list->apps())
        found.insert(app.source);
    std::vector<AppSource> sources(found.begin(), found.end());
    if (sources == m_sources)
        return;
    m_sources = std::move(sources);
    if (m_source && !found.contains(*m_source)) {
        m_source.reset();
        invalidateRowsFilter();
    }
    Q_EMIT sourcesChanged();
}

QStringList AppOrderModel::sources() const
{
    QStringList names{DisplayText::text(WindowTexts::kAllSources)};
    for (const AppSource source : m_sources)
        names += AppInfoTexts::kind(source);
    return names;
}

int AppOrderModel::source() const
{
    return m_source ? 1 + static_cast<int>(std::ranges::find(m_sources, *m_source) - m_sources.begin()) : 0;
}

void AppOrderModel::setSource(int number)
{
    if (number == source() || number < 0 || number > std::ssize(m_sources))
        return;
    m_source = number == 0 ? std::nullopt : std::optional(m_sources[static_cast<std::size_t>(number) - 1]);
    invalidateRowsFilter();
    Q_EMIT sourcesChanged();
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
    return (!m_source || app.source == *m_source) && m_search.fits(text);
}

const AppInfo& AppOrderModel::appAt(int listRow) const
{
    return m_list->apps()[static_cast<std::size_t>(listRow)];
}

/// The source list is already sorted by name.
bool AppOrderModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto bytes = [this](const QModelIndex& index) { return appAt(index.row()).total().value_or(-1); };
    const auto used = [this](const QModelIndex& index) {
        const auto& use = appAt(index.row()).lastUse;
        return use ? use->when : TimePoint::max();
    };
    if (m_order == BySize && bytes(left) != bytes(right))
        return bytes(left) > bytes(right);
    if (m_order == ByUse && used(left) != used(right))
        return used(left) < used(right);
    return left.row() < right.row();
}

} // namespace orlen

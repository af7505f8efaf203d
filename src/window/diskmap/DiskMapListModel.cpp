#include "window/diskmap/DiskMapListModel.h"

#include "window/lists/Remembered.h"

#include <algorithm>

namespace orlen {

namespace {

const QString kList = QStringLiteral("diskMap");

/// All lie in one folder, so that only their names are sorted and searched.
FileEntry entryOf(const TreeNode& node)
{
    return {.path = node.name, .size = node.size, .modified = node.newest};
}

} // namespace

DiskMapListModel::DiskMapListModel() : m_wish(Remembered::order(kList)) {}

void DiskMapListModel::setMap(DiskMapView* map)
{
    if (m_map == map)
        return;
    if (m_map)
        m_map->disconnect(this);
    m_map = map;
    if (m_map) {
        // The map's rows change step by step; what is said last is that all did.
        connect(m_map, &DiskMapView::dataChanged, this, &DiskMapListModel::arrange);
        connect(m_map, &DiskMapView::loadingChanged, this, &DiskMapListModel::arrange);
        connect(m_map, &DiskMapView::currentRowChanged, this, &DiskMapListModel::currentRowChanged);
    }
    arrange();
    Q_EMIT mapChanged();
}

void DiskMapListModel::setFilter(const QString& filter)
{
    if (m_wish.filter == filter)
        return;
    m_wish.filter = filter;
    rearrange();
}

void DiskMapListModel::sortBy(int key)
{
    m_wish = EntryOrder::pressed(std::move(m_wish), static_cast<EntryOrder::Key>(key));
    Remembered::setOrder(kList, m_wish);
    rearrange();
}

void DiskMapListModel::rearrange()
{
    arrange();
    Q_EMIT orderChanged();
}

int DiskMapListModel::mapRow(int row) const
{
    return hasRow(row) ? m_rows[static_cast<std::size_t>(row)].mapRow : -1;
}

int DiskMapListModel::currentRow() const
{
    const int current = m_map ? m_map->currentRow() : -1;
    const auto found = std::ranges::find(m_rows, current, &Row::mapRow);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

void DiskMapListModel::setCurrentRow(int row)
{
    if (m_map && hasRow(row))
        m_map->setCurrentRow(mapRow(row));
}

std::optional<RowSubject> DiskMapListModel::subject(int row) const
{
    return m_map ? m_map->subject(mapRow(row)) : std::nullopt;
}

std::vector<DiskMapListModel::Row> DiskMapListModel::wantedRows() const
{
    if (!m_map)
        return {};
    std::vector<FileEntry> entries;
    std::vector<Row> rest;
    for (int row = 0; row < m_map->rowCount(); ++row) {
        if (const TreeNode& node = m_map->node(row); !node.isOther)
            entries.push_back(entryOf(node));
        else if (m_wish.filter.isEmpty())
            rest.push_back({row, node.path + '/'});
    }
    std::vector<Row> rows;
    for (const int row : EntryOrder::rows(entries, EntryOrder::wordsOf(entries), m_wish))
        rows.push_back({row, m_map->node(row).path});
    rows.insert(rows.end(), rest.begin(), rest.end());
    return rows;
}

void DiskMapListModel::arrange()
{
    if (m_map && m_map->isLoading())
        return;
    setRows(m_rows, wantedRows(), &Row::key);
    allChanged();
    Q_EMIT currentRowChanged();
}

QVariant DiskMapListModel::value(std::size_t number, int role) const
{
    return m_map ? m_map->data(m_map->index(m_rows[number].mapRow), role) : QVariant();
}

} // namespace orlen

#include "window/photos/PhotoTilesModel.h"

#include "platform/text/PathText.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathTokens.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/Reveal.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

namespace orlen {

namespace {

/// Calls `found(first, end)` for each run of numbers below `count` for which `isPart` holds, last run first.
template <typename IsPart, typename Found>
void eachRunBackwards(std::size_t count, IsPart isPart, Found found)
{
    for (std::size_t end = count; end > 0;) {
        if (!isPart(end - 1)) {
            --end;
            continue;
        }
        std::size_t first = end - 1;
        while (first > 0 && isPart(first - 1))
            --first;
        found(first, end);
        end = first;
    }
}

} // namespace

void PhotoTilesModel::setGroups(PhotoGroupsModel* groups)
{
    if (m_groups == groups)
        return;
    if (m_groups != nullptr)
        m_groups->disconnect(this);
    m_groups = groups;
    if (m_groups != nullptr) {
        connect(m_groups, &PhotoGroupsModel::photosChanged, this, [this](const QString& findingId) {
            if (findingId == m_findingId)
                update();
        });
        connect(m_groups, &PhotoGroupsModel::selectedChanged, this, &PhotoTilesModel::followSelection);
    }
    Q_EMIT groupsChanged();
    update();
}

void PhotoTilesModel::setFindingId(const QString& findingId)
{
    if (m_findingId == findingId)
        return;
    m_findingId = findingId;
    Q_EMIT findingIdChanged();
    update();
}

void PhotoTilesModel::setLimit(int limit)
{
    if (m_limit == limit)
        return;
    m_limit = limit;
    Q_EMIT limitChanged();
    update();
}

std::size_t PhotoTilesModel::room() const
{
    return m_limit > 0 ? static_cast<std::size_t>(m_limit) : std::numeric_limits<std::size_t>::max();
}

PhotoTilesModel::Tile PhotoTilesModel::tileOf(const FileEntry& entry) const
{
    const AppModel* app = m_groups->app();
    Tile tile;
    tile.path = entry.path;
    tile.name = PathText::lastComponent(entry.path);
    tile.note = entry.note.value_or(std::string());
    tile.size = entry.size;
    tile.isSelected = app != nullptr && app->selection().contains(entry.path);
    return tile;
}

std::vector<PhotoTilesModel::Tile> PhotoTilesModel::wanted() const
{
    const Finding* finding = m_groups == nullptr ? nullptr : m_groups->finding(m_findingId);
    if (finding == nullptr)
        return {};
    if (finding->kind == FindingKind::photoDuplicates)
        return tilesOfSets(*finding);
    std::vector<Tile> tiles;
    const std::size_t count = std::min(finding->items.size(), room());
    tiles.reserve(count);
    for (std::size_t number = 0; number < count; ++number)
        tiles.push_back(tileOf(finding->items[number]));
    return tiles;
}

std::vector<PhotoTilesModel::Tile> PhotoTilesModel::tilesOfSets(const Finding& finding) const
{
    std::vector<Tile> tiles;
    for (const PhotoSet& set : m_groups->setsOf(finding)) {
        const std::size_t first = tiles.size();
        if (!set.keeperName.empty()) {
            Tile keeper;
            keeper.path = set.keeper;
            keeper.name = set.keeperName;
            keeper.isKept = true;
            tiles.push_back(std::move(keeper));
        }
        for (const std::size_t number : set.entries)
            tiles.push_back(tileOf(finding.items[number]));
        for (std::size_t tile = first + 1; tile < tiles.size(); ++tile) {
            tiles[tile].joinsPrevious = true;
            tiles[tile - 1].joinsNext = true;
        }
        if (tiles.size() >= room()) {
            tiles.resize(room());
            break;
        }
    }
    return tiles;
}

/// What went and what came at the end is told row by row: that is what a clean-up and a wider window do.
void PhotoTilesModel::update()
{
    const std::vector<Tile> tiles = wanted();
    const Finding* finding = m_groups == nullptr ? nullptr : m_groups->finding(m_findingId);
    // The sets of changed photos come a little later; until then the old rows stand.
    if (tiles.empty() && finding != nullptr)
        return;
    removeMissing(tiles);
    const auto isSame = [](const Tile& a, const Tile& b) {
        return a.path == b.path && a.name == b.name && a.isKept == b.isKept;
    };
    if (m_tiles.size() > tiles.size() || !std::equal(m_tiles.begin(), m_tiles.end(), tiles.begin(), isSame)) {
        beginResetModel();
        m_tiles = tiles;
        endResetModel();
        return;
    }
    for (std::size_t row = 0; row < m_tiles.size(); ++row) {
        if (m_tiles[row] == tiles[row])
            continue;
        m_tiles[row] = tiles[row];
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed);
    }
    append(tiles);
}

void PhotoTilesModel::removeMissing(const std::vector<Tile>& tiles)
{
    const auto keyOf = [](const Tile& tile) { return tile.path + (tile.isKept ? "\n" + tile.name : ""); };
    std::unordered_set<std::string> staying;
    std::transform(tiles.begin(), tiles.end(), std::inserter(staying, staying.end()), keyOf);
    eachRunBackwards(
        m_tiles.size(), [&](std::size_t row) { return !staying.contains(keyOf(m_tiles[row])); },
        [this](std::size_t first, std::size_t end) {
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
            m_tiles.erase(m_tiles.begin() + static_cast<std::ptrdiff_t>(first),
                          m_tiles.begin() + static_cast<std::ptrdiff_t>(end));
            endRemoveRows();
        });
}

void PhotoTilesModel::append(const std::vector<Tile>& tiles)
{
    if (tiles.size() == m_tiles.size())
        return;
    const std::size_t first = m_tiles.size();
    beginInsertRows({}, static_cast<int>(first), static_cast<int>(tiles.size()) - 1);
    m_tiles.insert(m_tiles.end(), tiles.begin() + static_cast<std::ptrdiff_t>(first), tiles.end());
    endInsertRows();
}

void PhotoTilesModel::followSelection()
{
    const AppModel* app = m_groups->app();
    if (app == nullptr)
        return;
    const auto changes = [&](std::size_t row) {
        const Tile& tile = m_tiles[row];
        return !tile.isKept && app->selection().contains(tile.path) != tile.isSelected;
    };
    eachRunBackwards(m_tiles.size(), changes, [this](std::size_t first, std::size_t end) {
        for (std::size_t row = first; row < end; ++row)
            m_tiles[row].isSelected = !m_tiles[row].isSelected;
        Q_EMIT dataChanged(index(static_cast<int>(first)), index(static_cast<int>(end) - 1),
                           {static_cast<int>(Role::selected)});
    });
}

void PhotoTilesModel::toggle(int row)
{
    if (!hasIndex(row, 0))
        return;
    const Tile& tile = m_tiles[static_cast<std::size_t>(row)];
    const std::vector<std::string> path{tile.path};
    if (tile.isKept)
        return;
    if (tile.isSelected)
        m_groups->app()->deselect(path);
    else
        m_groups->app()->select(path);
}

int PhotoTilesModel::token(int row) const
{
    if (!hasIndex(row, 0) || m_tiles[static_cast<std::size_t>(row)].path.empty())
        return 0;
    return PathTokens::tokenOf(m_tiles[static_cast<std::size_t>(row)].path);
}

void PhotoTilesModel::reveal(int row) const
{
    if (hasIndex(row, 0) && !m_tiles[static_cast<std::size_t>(row)].path.empty())
        Reveal::show(m_tiles[static_cast<std::size_t>(row)].path);
}

int PhotoTilesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tiles.size());
}

QVariant PhotoTilesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Tile& tile = m_tiles[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::path(tile.name);
    case Role::details: {
        const QString folder = tile.path.empty() ? QString() : DisplayText::folderOf(tile.path);
        return tile.note.empty() ? folder : folder + u'\n' + DisplayText::path(tile.note);
    }
    case Role::size:
        return tile.isKept ? QString() : DisplayText::size(tile.size);
    case Role::source:
        return tile.path.empty() ? QString() : Thumbnails::source(tile.path);
    case Role::selected:
        return tile.isSelected;
    case Role::kept:
        return tile.isKept;
    case Role::joinsPrevious:
        return tile.joinsPrevious;
    case Role::joinsNext:
        return tile.joinsNext;
    }
    return {};
}

QHash<int, QByteArray> PhotoTilesModel::roleNames() const
{
    return {{static_cast<int>(Role::name), "name"},
            {static_cast<int>(Role::details), "details"},
            {static_cast<int>(Role::size), "size"},
            {static_cast<int>(Role::source), "source"},
            {static_cast<int>(Role::selected), "selected"},
            {static_cast<int>(Role::kept), "kept"},
            {static_cast<int>(Role::joinsPrevious), "joinsPrevious"},
            {static_cast<int>(Role::joinsNext), "joinsNext"}};
}

} // namespace orlen

#include "window/photos/PhotoTilesModel.h"

#include "model/KeptSets.h"
#include "platform/text/PathText.h"
#include "window/lists/DisplayText.h"
#include "window/lists/LeftUnticked.h"
#include "window/lists/PathCode.h"
#include "window/photos/PhotoSetsModel.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/Reveal.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace orlen {

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
        connect(m_groups, &PhotoGroupsModel::orderChanged, this, [this] {
            if (isWhole())
                update();
        });
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

void PhotoTilesModel::setSet(const QString& set)
{
    if (m_set == set)
        return;
    m_set = set;
    Q_EMIT setChanged();
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
    Tile tile;
    tile.path = entry.path;
    tile.name = PathText::lastComponent(entry.path);
    tile.note = noteOf(entry);
    tile.size = entry.size;
    tile.isSelected = m_app.results()->selection().contains(entry.path);
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
    if (isWhole()) {
        for (const int number : m_groups->order(*finding))
            tiles.push_back(tileOf(finding->items[static_cast<std::size_t>(number)]));
        return tiles;
    }
    const std::size_t count = std::min(finding->items.size(), room());
    tiles.reserve(count);
    for (std::size_t number = 0; number < count; ++number)
        tiles.push_back(tileOf(finding->items[number]));
    return tiles;
}

std::vector<PhotoTilesModel::Tile> PhotoTilesModel::tilesOfSets(const Finding& finding) const
{
    std::vector<Tile> tiles;
    for (const KeptSet& set : keptSets(finding.items)) {
        if (!m_set.isEmpty() && m_set != PhotoSetsModel::idOf(set, finding.items))
            continue;
        const std::size_t first = tiles.size();
        if (!set.kept.empty()) {
            Tile keeper;
            keeper.path = set.kept;
            keeper.name = PathText::lastComponent(set.kept);
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

void PhotoTilesModel::update()
{
    setRows(m_tiles, wanted(), &Tile::path);
}

void PhotoTilesModel::followSelection()
{
    std::vector<int> changed;
    for (std::size_t row = 0; row < m_tiles.size(); ++row) {
        Tile& tile = m_tiles[row];
        const bool isSelected = !tile.isKept && m_app.results()->selection().contains(tile.path);
        if (std::exchange(tile.isSelected, isSelected) != isSelected)
            changed.push_back(static_cast<int>(row));
    }
    if (!changed.empty())
        rowsChanged(changed.front(), changed.back(), Role::selected);
}

void PhotoTilesModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    const Tile& tile = m_tiles[static_cast<std::size_t>(row)];
    if (tile.isKept)
        return;
    if (tile.isSelected)
        m_app.results()->deselect(std::vector{tile.path});
    else
        m_groups->select(m_findingId, {tile.path});
}

QString PhotoTilesModel::pathAt(int row) const
{
    return hasRow(row) ? PathCode::of(m_tiles[static_cast<std::size_t>(row)].path) : QString();
}

void PhotoTilesModel::reveal(int row) const
{
    if (hasRow(row))
        Reveal::show(m_tiles[static_cast<std::size_t>(row)].path);
}

std::optional<RowSubject> PhotoTilesModel::subject(int row) const
{
    if (!hasRow(row) || m_tiles[static_cast<std::size_t>(row)].path.empty())
        return std::nullopt;
    return RowSubject{.path = m_tiles[static_cast<std::size_t>(row)].path,
                      .isTickable = true,
                      .isCopy = m_findingId == DisplayText::text(rawValue(FindingKind::photoDuplicates))};
}

void PhotoTilesModel::tickIn(const std::string& folder)
{
    const Finding* finding = m_groups == nullptr ? nullptr : m_groups->finding(m_findingId);
    if (finding == nullptr)
        return;
    std::vector<std::string> paths;
    std::size_t left = 0;
    for (const FileEntry& entry : finding->items) {
        if (m_app.results()->selection().contains(entry.path) || !PathText::isAtOrBelow(entry.path, folder))
            continue;
        if (isTickedAlong(entry, finding->rating))
            paths.push_back(entry.path);
        else
            ++left;
    }
    m_app.results()->select(paths);
    LeftUnticked::say(m_app, left);
}

QVariant PhotoTilesModel::value(std::size_t number, int role) const
{
    const Tile& tile = m_tiles[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::path(tile.name);
    case Role::details: {
        const QString folder = DisplayText::folderOf(tile.path);
        return tile.note.empty() ? folder : folder + u'\n' + DisplayText::text(tile.note);
    }
    case Role::size:
        return tile.isKept ? QString() : DisplayText::size(tile.size);
    case Role::source:
        return Thumbnails::source(tile.path);
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

} // namespace orlen

#include "window/diskmap/DiskMapView.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

constexpr int kHues = 6;

} // namespace

DiskMapView::DiskMapView(AppModel& app) : m_colours(app)
{
    m_crumbs.setFolders(m_map.stack());
    m_shownFolders = m_map.stack();
    connect(&m_map, &DiskMapModel::loadingChanged, this, &DiskMapView::followLoading);
    connect(&m_map, &DiskMapModel::stackChanged, this, &DiskMapView::followStack);
    connect(&m_map, &DiskMapModel::hoverChanged, this, &DiskMapView::hoverChanged);
    connect(&m_colours, &TileColours::changed, this, &DiskMapView::followColours);
    connect(app.cleanUps(), &CleanUps::cleaningFinished, this, &DiskMapView::followMoves);
    connect(app.cleanUps(), &CleanUps::restored, this, &DiskMapView::followMoves);
}

void DiskMapView::setShown(bool isShown)
{
    if (isShown == m_isShown)
        return;
    m_isShown = isShown;
    Q_EMIT shownChanged();
    if (m_isShown && m_isOutdated)
        load();
}

void DiskMapView::followMoves()
{
    m_isOutdated = true;
    if (m_isShown)
        load();
}

void DiskMapView::setViewWidth(double width)
{
    m_view.width = width;
    placeTiles();
    Q_EMIT viewChanged();
}

void DiskMapView::setViewHeight(double height)
{
    m_view.height = height;
    placeTiles();
    Q_EMIT viewChanged();
}

QString DiskMapView::folderName() const
{
    return BreadcrumbModel::nameOfLast(m_map.stack());
}

int DiskMapView::hoverRow() const
{
    return isLoading() || !m_map.hover() ? -1 : static_cast<int>(*m_map.hover());
}

void DiskMapView::setCurrentRow(int row)
{
    if (row == m_currentRow || row < -1 || row >= rowCount())
        return;
    m_currentRow = row;
    Q_EMIT currentRowChanged();
}

void DiskMapView::load()
{
    m_isOutdated = false;
    m_map.load();
}

void DiskMapView::show(const QString& code)
{
    m_map.show(PathCode::path(code));
}

void DiskMapView::followPlaces()
{
    m_starts.set(m_map.places(), m_map.stack().front());
    Q_EMIT placesChanged();
}

void DiskMapView::startAt(int place)
{
    if (const auto folder = m_starts.folder(place))
        m_map.startAt(*folder);
}

bool DiskMapView::drop(const QList<QUrl>& urls)
{
    const auto folder = MapStarts::dropped(urls);
    if (folder && PathText::isAtOrBelow(*folder, Places::current().home))
        m_map.show(*folder);
    else if (folder)
        m_map.startAt(*folder);
    return folder.has_value();
}

void DiskMapView::up()
{
    m_map.up();
}

void DiskMapView::goTo(int step)
{
    if (step >= 0 && static_cast<std::size_t>(step) < m_map.stack().size())
        m_map.goTo(static_cast<std::size_t>(step));
}

void DiskMapView::open(int row)
{
    if (!isLoading() && hasRow(row))
        m_map.zoomInto(static_cast<std::size_t>(row));
}

std::optional<RowSubject> DiskMapView::subject(int row) const
{
    if (isLoading() || !hasRow(row) || node(row).isOther)
        return std::nullopt;
    const TreeNode& shown = node(row);
    RowSubject subject{.path = shown.path};
    if (shown.stamp) {
        subject.entry =
            FileEntry{.path = shown.path, .size = shown.size, .modified = shown.newest, .stamp = shown.stamp};
    }
    return subject;
}

void DiskMapView::step(Direction direction)
{
    if (isLoading() || m_tiles.empty())
        return;
    if (!hasRow(m_currentRow)) {
        setCurrentRow(0);
        return;
    }
    const auto next =
        MapTiles::neighbour(m_tiles, m_view, m_currentRow, static_cast<TileStep::Direction>(direction));
    if (next)
        setCurrentRow(*next);
}

QString DiskMapView::describe(int row) const
{
    const QString name = hasRow(row) ? DisplayText::text(node(row).title()) : folderName();
    return DisplayText::facts({name, DisplayText::size(hasRow(row) ? node(row).size : m_total)});
}

QString DiskMapView::sizeAt(int row) const
{
    return hasRow(row) ? DisplayText::size(node(row).size) : QString();
}

int DiskMapView::rowAt(QPointF point)
{
    m_gestures.movePointer(point);
    return hoverRow();
}

void DiskMapView::followStack()
{
    m_crumbs.setFolders(m_map.stack());
    followPlaces();
    const int row = MapTiles::rowOf(m_tiles, m_map.current());
    m_zoomOrigin = hasRow(row) ? m_tiles[static_cast<std::size_t>(row)].area.center()
                               : QPointF(m_view.width / 2, m_view.height / 2);
    Q_EMIT stackChanged();
}

void DiskMapView::followLoading()
{
    if (isLoading()) {
        Q_EMIT loadingChanged();
        return;
    }
    m_isMeasured = true;
    followPlaces();
    const int levels = static_cast<int>(m_map.stack().size()) - static_cast<int>(m_shownFolders.size());
    arrange();
    Q_EMIT loadingChanged();
    Q_EMIT hoverChanged();
    Q_EMIT arrived(levels);
}

void DiskMapView::arrange()
{
    const bool wasHere = hasRow(m_currentRow) && m_shownFolders.back() == m_map.current();
    const std::string current = wasHere ? node(m_currentRow).path : std::string();
    m_isRearranging = true;
    Q_EMIT rearrangingChanged();
    showTiles(m_map.nodes());
    m_isRearranging = false;
    Q_EMIT rearrangingChanged();

    const int row = wasHere ? MapTiles::rowOf(m_tiles, current) : rowAfterArrival();
    m_shownFolders = m_map.stack();
    m_currentRow = m_tiles.empty() ? -1 : std::max(row, 0);
    Q_EMIT currentRowChanged();
}

/// When going up, the folder one came from.
int DiskMapView::rowAfterArrival() const
{
    const std::size_t depth = m_map.stack().size();
    return m_shownFolders.size() > depth ? MapTiles::rowOf(m_tiles, m_shownFolders[depth]) : -1;
}

void DiskMapView::placeTiles()
{
    MapTiles::place(m_tiles, m_view);
    allChanged();
}

void DiskMapView::colour(std::vector<MapTile>& tiles) const
{
    for (MapTile& tile : tiles)
        tile.shade = m_colours.shadeOf(tile.node);
}

void DiskMapView::followColours()
{
    colour(m_tiles);
    allChanged(Role::shade, Role::symbol, Role::fact);
}

/// Rows of remaining items keep their identity, so that their tiles can move to the new place.
void DiskMapView::showTiles(const std::vector<TreeNode>& nodes)
{
    std::vector<MapTile> tiles = MapTiles::of(nodes, m_view);
    colour(tiles);
    m_total = MapTiles::total(tiles);
    setRows(m_tiles, std::move(tiles), &MapTile::key);
    // A tile's roles depend on its index and on the other tiles.
    allChanged();
}

QVariant DiskMapView::value(std::size_t number, int role) const
{
    const auto& [node, area, shade] = m_tiles[number];
    const double share = m_total > 0 ? static_cast<double>(node.size) / static_cast<double>(m_total) : 0;
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::text(node.title());
    case Role::size:
        return DisplayText::size(node.size);
    case Role::kind:
        return static_cast<int>(TileText::kindOf(node));
    case Role::hue:
        return static_cast<int>(number) % kHues;
    case Role::shade:
        return shade;
    case Role::symbol:
        return m_colours.symbols().value(shade);
    case Role::fact:
        return m_colours.fact(node, shade);
    case Role::area:
        return area;
    case Role::share:
        return share;
    case Role::shareText:
        return DisplayText::percent(share);
    case Role::spoken:
        return TileText::spoken(node);
    case Role::unread:
        return node.reading == TreeNode::Reading::none;
    case Role::locked:
        return node.reading != TreeNode::Reading::whole;
    }
    return {};
}

} // namespace orlen

#pragma once

#include "app/DiskMapModel.h"
#include "window/diskmap/BreadcrumbModel.h"
#include "window/diskmap/MapGestures.h"
#include "window/diskmap/MapStarts.h"
#include "window/diskmap/MapTiles.h"
#include "window/diskmap/TileColours.h"
#include "window/diskmap/TileStep.h"
#include "window/diskmap/TileText.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QList>
#include <QPointF>
#include <QStringList>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// The disk map as tiles for a view of a given size, largest first, at most 61. While a folder is being
/// measured, the previous folder's tiles remain as rows so that the screen can animate them out; they do not
/// react to input. Measures anew after a clean-up or a restore, once it is shown. Main thread.
class DiskMapView : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double viewWidth READ viewWidth WRITE setViewWidth NOTIFY viewChanged)
    Q_PROPERTY(double viewHeight READ viewHeight WRITE setViewHeight NOTIFY viewChanged)
    /// Whether the user sees the map.
    Q_PROPERTY(bool shown READ isShown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)
    /// Whether the folder was measured and has nothing to show.
    Q_PROPERTY(bool empty READ isEmpty NOTIFY loadingChanged)
    /// Whether it is empty because the folder cannot be read or is gone.
    Q_PROPERTY(bool locked READ isLocked NOTIFY loadingChanged)
    /// Whether the start folder is shown.
    Q_PROPERTY(bool atStart READ isAtStart NOTIFY stackChanged)
    /// Name of the folder shown.
    Q_PROPERTY(QString folderName READ folderName NOTIFY stackChanged)
    /// The folders where the map may start, and which of them is its start.
    Q_PROPERTY(QStringList places READ places NOTIFY placesChanged)
    Q_PROPERTY(int place READ place NOTIFY placesChanged)
    Q_PROPERTY(orlen::BreadcrumbModel* crumbs READ crumbs CONSTANT)
    Q_PROPERTY(orlen::TileColours* colours READ colours CONSTANT)
    Q_PROPERTY(orlen::MapGestures* gestures READ gestures CONSTANT)
    /// Tile under the pointer, -1 for none.
    Q_PROPERTY(int hoverRow READ hoverRow NOTIFY hoverChanged)
    /// Tile with the keyboard focus, -1 for none.
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)
    /// Whether tiles move because the content changed, not because the view was resized.
    Q_PROPERTY(bool rearranging READ isRearranging NOTIFY rearrangingChanged)
    /// The centre of the last tile the map zoomed into.
    Q_PROPERTY(QPointF zoomOrigin READ zoomOrigin NOTIFY arrived)

public:
    enum class Role {
        name = Qt::UserRole, ///< file name, or the grouped node's label
        size,                ///< bytes as text
        kind,                ///< Kind
        hue,                 ///< 0 to 5; neighbours mostly differ
        shade,               ///< of the legend of `colours`
        symbol,              ///< icon name of the shade; may be empty
        fact,                ///< what the shade tells of this tile; may be empty
        area,                ///< the tile in the view, in whole points, without the gap
        share,               ///< part of the folder, 0 to 1
        shareText,           ///< the same as a percentage
        spoken,              ///< name, size and kind for a screen reader
        unread,              ///< whether it is a folder of which nothing could be read
        locked,              ///< whether it, or something in it, could not be read
    };
    Q_ENUM(Role)
    enum Kind {
        Folder = static_cast<int>(TileText::Kind::folder),
        File = static_cast<int>(TileText::Kind::file),
        Rest = static_cast<int>(TileText::Kind::rest),
    };
    Q_ENUM(Kind)
    enum Direction {
        Left = static_cast<int>(TileStep::Direction::left),
        Right = static_cast<int>(TileStep::Direction::right),
        Up = static_cast<int>(TileStep::Direction::up),
        Down = static_cast<int>(TileStep::Direction::down),
    };
    Q_ENUM(Direction)

    explicit DiskMapView(AppModel& app = AppModelElement::model());

    [[nodiscard]] double viewWidth() const { return m_view.width; }
    void setViewWidth(double width);
    [[nodiscard]] double viewHeight() const { return m_view.height; }
    void setViewHeight(double height);
    [[nodiscard]] bool isShown() const { return m_isShown; }
    void setShown(bool isShown);
    [[nodiscard]] bool isLoading() const { return m_map.isLoading(); }
    [[nodiscard]] bool isEmpty() const { return m_isMeasured && !isLoading() && m_tiles.empty(); }
    [[nodiscard]] bool isLocked() const { return isEmpty() && !m_map.isReadable(); }
    [[nodiscard]] bool isAtStart() const { return m_map.stack().size() == 1; }
    [[nodiscard]] QString folderName() const;
    [[nodiscard]] QStringList places() const { return m_starts.names(); }
    [[nodiscard]] int place() const { return m_starts.indexOf(m_map.stack().front()); }
    [[nodiscard]] BreadcrumbModel* crumbs() { return &m_crumbs; }
    [[nodiscard]] TileColours* colours() { return &m_colours; }
    [[nodiscard]] MapGestures* gestures() { return &m_gestures; }
    [[nodiscard]] int hoverRow() const;
    [[nodiscard]] int currentRow() const { return m_currentRow; }
    void setCurrentRow(int row);
    [[nodiscard]] bool isRearranging() const { return m_isRearranging; }
    [[nodiscard]] QPointF zoomOrigin() const { return m_zoomOrigin; }
    /// What an existing row stands for; valid until the next change.
    [[nodiscard]] const TreeNode& node(int row) const { return m_tiles[static_cast<std::size_t>(row)].node; }

    Q_INVOKABLE void load();
    /// Goes to a folder below the start folder, a `PathCode`.
    Q_INVOKABLE void show(const QString& code);
    /// Starts in one of the places.
    Q_INVOKABLE void startAt(int place);
    /// Goes to the first folder of what was dropped on the map, and starts there if the home folder does not
    /// hold it. False if there is none.
    Q_INVOKABLE bool drop(const QList<QUrl>& urls);
    Q_INVOKABLE void up();
    /// Goes to a folder of the breadcrumb.
    Q_INVOKABLE void goTo(int step);
    /// Goes into the tile's folder.
    Q_INVOKABLE void open(int row);
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;
    /// Makes the next tile in that direction current.
    Q_INVOKABLE void step(Direction direction);
    /// "name · size" of a tile, or of the whole folder for -1.
    [[nodiscard]] Q_INVOKABLE QString describe(int row) const;
    [[nodiscard]] Q_INVOKABLE QString sizeAt(int row) const;

    /// Moves the pointer to the point and returns the tile there, -1 for none.
    [[nodiscard]] Q_INVOKABLE int rowAt(QPointF point);

Q_SIGNALS:
    void viewChanged();
    void placesChanged();
    void shownChanged();
    void loadingChanged();
    void stackChanged();
    void hoverChanged();
    void currentRowChanged();
    void rearrangingChanged();
    /// Another folder's tiles have arrived. `levels`: how much deeper it is than the one before; 0 when it is
    /// the same folder.
    void arrived(int levels);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_tiles.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    void followLoading();
    void followStack();
    void followMoves();
    void followPlaces();
    void followColours();
    void arrange();
    void colour(std::vector<MapTile>& tiles) const;
    void placeTiles();
    void showTiles(const std::vector<TreeNode>& nodes);
    [[nodiscard]] int rowAfterArrival() const;

    DiskMapModel m_map;
    BreadcrumbModel m_crumbs;
    TileColours m_colours;
    Treemap::Size m_view;
    MapGestures m_gestures{m_map, m_view};
    MapStarts m_starts;
    std::vector<MapTile> m_tiles;
    std::int64_t m_total = 0;                ///< bytes of all tiles
    std::vector<std::string> m_shownFolders; ///< path to the folder these tiles belong to
    bool m_isShown = false;
    bool m_isOutdated = false; ///< something was moved since the last load
    bool m_isMeasured = false; ///< at least one load has finished
    bool m_isRearranging = false;
    int m_currentRow = -1;
    QPointF m_zoomOrigin;
};

} // namespace orlen

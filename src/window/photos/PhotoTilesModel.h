#pragma once

#include "window/lists/RowsModel.h"
#include "window/photos/PhotoGroupsModel.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// The photos of one group as rows, largest first. Similar photos stand set by set, each set beginning with
/// the photo that is kept; that one cannot be selected. Main thread.
class PhotoTilesModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::PhotoGroupsModel* groups READ groups WRITE setGroups NOTIFY groupsChanged REQUIRED)
    /// Which of the groups; no rows while it is none.
    Q_PROPERTY(QString findingId READ findingId WRITE setFindingId NOTIFY findingIdChanged)
    /// Rows at most; 0: all.
    Q_PROPERTY(int limit READ limit WRITE setLimit NOTIFY limitChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< file name
        details,             ///< folder and note, a line each
        size,                ///< bytes as text; empty for a kept photo
        source,              ///< of an image item; empty when there is nothing to draw
        selected,            ///< whether it is in the selection
        kept,                ///< whether it is the photo that its set keeps
        joinsPrevious,       ///< whether the row before is of the same set
        joinsNext,           ///< whether the row after is of the same set
    };
    Q_ENUM(Role)

    explicit PhotoTilesModel(AppModel& app = AppModelElement::model()) : m_app(app) {}

    [[nodiscard]] PhotoGroupsModel* groups() const { return m_groups; }
    void setGroups(PhotoGroupsModel* groups);
    [[nodiscard]] QString findingId() const { return m_findingId; }
    void setFindingId(const QString& findingId);
    [[nodiscard]] int limit() const { return m_limit; }
    void setLimit(int limit);

    /// Selects the row's photo, or takes it out of the selection; ignored for a kept one.
    Q_INVOKABLE void toggle(int row);
    /// The photo's `PathCode` for a preview; empty when its place is not known.
    Q_INVOKABLE [[nodiscard]] QString pathAt(int row) const;
    /// Shows the row's photo in the desktop's file manager.
    Q_INVOKABLE void reveal(int row) const;

Q_SIGNALS:
    void groupsChanged();
    void findingIdChanged();
    void limitChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_tiles.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Tile {
        std::string path; ///< empty for a kept photo that was not found
        std::string name;
        std::string note;
        std::int64_t size = 0;
        bool isKept = false;
        bool joinsPrevious = false;
        bool joinsNext = false;
        bool isSelected = false;

        friend bool operator==(const Tile&, const Tile&) = default;
    };

    [[nodiscard]] std::vector<Tile> wanted() const;
    [[nodiscard]] std::vector<Tile> tilesOfSets(const Finding& finding) const;
    [[nodiscard]] Tile tileOf(const FileEntry& entry) const;
    [[nodiscard]] std::size_t room() const;
    void update();
    void followSelection();

    AppModel& m_app;
    PhotoGroupsModel* m_groups = nullptr;
    QString m_findingId;
    int m_limit = 0;
    std::vector<Tile> m_tiles;
};

} // namespace orlen

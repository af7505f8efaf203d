#pragma once

#include "window/lists/RowsModel.h"
#include "window/photos/PhotoGroupsModel.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// The photos of one group as rows, largest first. Similar photos come set by set, each starting with the
/// kept photo, which cannot be selected. Main thread.
class PhotoTilesModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::PhotoGroupsModel* groups READ groups WRITE setGroups NOTIFY groupsChanged REQUIRED)
    /// Id of the group; no rows while it matches none.
    Q_PROPERTY(QString findingId READ findingId WRITE setFindingId NOTIFY findingIdChanged)
    /// Shows only this set of similar photos, by the id that PhotoSetsModel gives it; empty: all of them.
    Q_PROPERTY(QString set READ set WRITE setSet NOTIFY setChanged)
    /// Maximum number of rows; 0: no limit.
    Q_PROPERTY(int limit READ limit WRITE setLimit NOTIFY limitChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< file name
        details,             ///< folder and note, one per line
        size,                ///< bytes as text; empty for a kept photo
        source,              ///< image source; empty when there is nothing to draw
        selected,
        kept,          ///< whether it is the photo its set keeps
        joinsPrevious, ///< whether the previous row is in the same set
        joinsNext,     ///< whether the next row is in the same set
    };
    Q_ENUM(Role)

    explicit PhotoTilesModel(AppModel& app = AppModelElement::model()) : m_app(app) {}

    [[nodiscard]] PhotoGroupsModel* groups() const { return m_groups; }
    void setGroups(PhotoGroupsModel* groups);
    [[nodiscard]] QString findingId() const { return m_findingId; }
    void setFindingId(const QString& findingId);
    [[nodiscard]] QString set() const { return m_set; }
    void setSet(const QString& set);
    [[nodiscard]] int limit() const { return m_limit; }
    void setLimit(int limit);

    /// Selects or deselects the row's photo. Ignored for a kept one, and for the last one of a set that would
    /// be left.
    Q_INVOKABLE void toggle(int row);
    /// The photo's `PathCode`, for a preview; empty when its path is unknown.
    Q_INVOKABLE [[nodiscard]] QString pathAt(int row) const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;
    /// Of all photos of the group, whatever the limit.
    void tickIn(const std::string& folder) override;
    /// Shows the row's photo in the file manager.
    Q_INVOKABLE void reveal(int row) const;

Q_SIGNALS:
    void groupsChanged();
    void findingIdChanged();
    void setChanged();
    void limitChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_tiles.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Tile {
        std::string path;
        std::string name;
        Message note;
        std::int64_t size = 0;
        bool isKept = false;
        bool joinsPrevious = false;
        bool joinsNext = false;
        bool isSelected = false;

        friend bool operator==(const Tile&, const Tile&) = default;
    };

    /// Whether it shows a group on its own, in the order and with the filter of that.
    [[nodiscard]] bool isWhole() const { return m_limit == 0 && m_set.isEmpty(); }
    [[nodiscard]] std::vector<Tile> wanted() const;
    [[nodiscard]] std::vector<Tile> tilesOfSets(const Finding& finding) const;
    [[nodiscard]] Tile tileOf(const FileEntry& entry) const;
    [[nodiscard]] std::size_t room() const;
    void update();
    void followSelection();

    AppModel& m_app;
    PhotoGroupsModel* m_groups = nullptr;
    QString m_findingId;
    QString m_set;
    int m_limit = 0;
    std::vector<Tile> m_tiles;
};

} // namespace orlen

#pragma once

#include "model/KeptSets.h"
#include "window/lists/RowsModel.h"
#include "window/photos/PhotoGroupsModel.h"

#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// The sets of similar photos as rows, in the order of their first photos. Main thread.
class PhotoSetsModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::PhotoGroupsModel* groups READ groups WRITE setGroups NOTIFY groupsChanged REQUIRED)
    /// Id of the finding; no rows while it matches none.
    Q_PROPERTY(QString findingId READ findingId WRITE setFindingId NOTIFY findingIdChanged)

public:
    enum class Role {
        set = Qt::UserRole, ///< id of the set
        heading,            ///< number of photos, when they were taken or changed, and the kept one's folder
        reason,             ///< why it is the kept one; empty when none is
        photos,             ///< number of photos, with the kept one
    };
    Q_ENUM(Role)

    [[nodiscard]] PhotoGroupsModel* groups() const { return m_groups; }
    void setGroups(PhotoGroupsModel* groups);
    [[nodiscard]] QString findingId() const { return m_findingId; }
    void setFindingId(const QString& findingId);

    /// The id of a set of these entries; it has another one once another photo is kept.
    [[nodiscard]] static QString idOf(const KeptSet& set, const std::vector<FileEntry>& entries);
    /// The row of the set that the photo is in; -1 for none. Takes a `PathCode`.
    Q_INVOKABLE [[nodiscard]] int rowWith(const QString& photo) const;

    struct Photo {
        std::string path;
        bool isKept = false;
        friend bool operator==(const Photo&, const Photo&) = default;
    };
    /// Of a set, the kept one first; none for a row that does not exist.
    [[nodiscard]] std::vector<Photo> photosOf(int row) const;
    /// All that a set's heading says; empty for a row that does not exist.
    [[nodiscard]] QString headingOf(int row) const;

Q_SIGNALS:
    void groupsChanged();
    void findingIdChanged();
    /// The sets, or the photos of one, may have changed.
    void setsChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_sets.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Set {
        std::string id; ///< as `idOf`
        std::vector<Photo> photos;
        std::optional<TimePoint> date;
        Text reason;

        friend bool operator==(const Set&, const Set&) = default;
    };

    [[nodiscard]] static Set setOf(const KeptSet& kept, const std::vector<FileEntry>& entries);
    void update();

    PhotoGroupsModel* m_groups = nullptr;
    QString m_findingId;
    std::vector<Set> m_sets;
};

} // namespace orlen

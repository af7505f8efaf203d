#pragma once

#include "window/diskmap/DiskMapView.h"
#include "window/findings/EntryOrder.h"

#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The items of the disk map as a list: filtered and in an order of its own, which is remembered. The
/// combined item comes last, and no filter finds it. Main thread.
class DiskMapListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::DiskMapView* map READ map WRITE setMap NOTIFY mapChanged REQUIRED)
    /// A key of `EntryOrder`: size, name or date.
    Q_PROPERTY(int key READ key NOTIFY orderChanged)
    Q_PROPERTY(bool reversed READ isReversed NOTIFY orderChanged)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY orderChanged)
    /// The row of the map's current item; -1 if it is not listed.
    Q_PROPERTY(int currentRow READ currentRow WRITE setCurrentRow NOTIFY currentRowChanged)

public:
    /// The same as those of the map.
    enum class Role {
        name = static_cast<int>(DiskMapView::Role::name),
        size = static_cast<int>(DiskMapView::Role::size),
        kind = static_cast<int>(DiskMapView::Role::kind),
        share = static_cast<int>(DiskMapView::Role::share),
        shareText = static_cast<int>(DiskMapView::Role::shareText),
        spoken = static_cast<int>(DiskMapView::Role::spoken),
        unread = static_cast<int>(DiskMapView::Role::unread),
        locked = static_cast<int>(DiskMapView::Role::locked),
    };
    Q_ENUM(Role)

    DiskMapListModel();

    [[nodiscard]] DiskMapView* map() const { return m_map; }
    void setMap(DiskMapView* map);
    [[nodiscard]] int key() const { return static_cast<int>(m_wish.key); }
    [[nodiscard]] bool isReversed() const { return m_wish.direction == EntryOrder::Direction::reversed; }
    [[nodiscard]] QString filter() const { return m_wish.filter; }
    void setFilter(const QString& filter);
    [[nodiscard]] int currentRow() const;
    void setCurrentRow(int row);

    /// Sorts by a key, or reverses the order if already sorted by it.
    Q_INVOKABLE void sortBy(int key);
    /// The map's row of a row; -1 if it does not exist.
    [[nodiscard]] Q_INVOKABLE int mapRow(int row) const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

Q_SIGNALS:
    void mapChanged();
    void orderChanged();
    void currentRowChanged();

private:
    struct Row {
        int mapRow = 0;
        std::string key;

        friend bool operator==(const Row&, const Row&) = default;
    };

    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    [[nodiscard]] std::vector<Row> wantedRows() const;
    void arrange();
    void rearrange();

    QPointer<DiskMapView> m_map;
    EntryOrder::Wish m_wish;
    std::vector<Row> m_rows;
};

} // namespace orlen

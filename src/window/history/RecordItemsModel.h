#pragma once

#include "app/AppModel.h"
#include "app/Workers.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <stop_token>
#include <vector>

namespace orlen {

/// The items of one past clean-up as rows, in the order in which they were moved. Whether they still lie in
/// the Trash is looked up on a worker and arrives later. Main thread.
class RecordItemsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// `HistoryModel`'s role of that name; no rows while it is empty.
    Q_PROPERTY(QString recordId READ recordId WRITE setRecordId NOTIFY recordIdChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum State {
        Unknown,  ///< not looked up yet
        InTrash,  ///< lies in the Trash
        Restored, ///< was put back
        Gone,     ///< neither: its Trash was emptied, or somebody else moved it
    };
    Q_ENUM(State)

    enum class Role {
        name = Qt::UserRole, ///< last component of its place
        folder,              ///< where it was
        size,                ///< bytes as text
        status,              ///< a `State`
        statusText,          ///< the same in words
    };

    explicit RecordItemsModel(QObject* parent = nullptr) : QAbstractListModel(parent), m_workers(*this) {}

    [[nodiscard]] AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    [[nodiscard]] QString recordId() const { return m_recordId; }
    void setRecordId(const QString& id);

    /// Shows a restored item in the desktop's file manager; ignored for any other.
    Q_INVOKABLE void reveal(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void appChanged();
    void recordIdChanged();
    void countChanged();

private:
    struct Row {
        TrashedItem item;
        State state = Unknown;
    };

    void update();
    void reset(const std::vector<TrashedItem>& items);
    void lookUp();
    void setStates(const std::vector<State>& states);
    void announce(std::size_t first, std::size_t end);

    AppModel* m_app = nullptr;
    QString m_recordId;
    std::vector<Row> m_rows;
    int m_generation = 0; ///< number of the latest look-up: the result of an older one is dropped
    std::stop_source m_lookUpStop{std::nostopstate};

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

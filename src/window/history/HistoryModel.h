#pragma once

#include "app/AppModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The past clean-ups as rows, newest first, and the way back from each of them. Main thread.
class HistoryModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum State {
        Restorable, ///< holds items that were not put back
        Restoring,  ///< is being put back
        Restored,   ///< every item is back
    };
    Q_ENUM(State)

    enum class Role {
        title = Qt::UserRole, ///< of the plan that was carried out
        symbol,               ///< icon name
        tone,                 ///< colour of the badge
        date,                 ///< when it finished, as text
        summary,              ///< numbers of items, of restored ones and of those that could not be moved
        freed,                ///< bytes of all items as text
        status,               ///< a `State`
        recordId,             ///< identity, for `RecordItemsModel.recordId`
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] AppModel* app() const { return m_app; }
    void setApp(AppModel* app);

    /// Starts to put the row's items back; `restored` follows. Ignored unless the row is restorable and the
    /// program may write.
    Q_INVOKABLE void restore(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void appChanged();
    void countChanged();
    /// A restore has ended, with one line for the user.
    void restored(const QString& message);

private:
    struct Row {
        Uuid id;
        TimePoint date;
        std::string title;
        std::int64_t freed = 0;
        int items = 0;
        int restored = 0;
        int failed = 0;
        bool isRestoring = false;

        friend bool operator==(const Row&, const Row&) = default;
    };

    [[nodiscard]] Row rowOf(const CleanRecord& record) const;
    [[nodiscard]] static State stateOf(const Row& row);
    [[nodiscard]] static QString summaryOf(const Row& row);
    void update();
    void insertNewest(std::vector<Row> rows, std::size_t added);

    AppModel* m_app = nullptr;
    std::vector<Row> m_rows;
};

} // namespace orlen

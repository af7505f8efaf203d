#pragma once

#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The past clean-ups as rows, newest first, each of which can be restored. Main thread.
class HistoryModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum State {
        Restorable, ///< has items that are not back
        Restoring,  ///< is being put back
        Restored,   ///< every item is back
    };
    Q_ENUM(State)

    enum class Role {
        title = Qt::UserRole, ///< of the plan
        symbol,               ///< icon name
        tone,                 ///< colour of the badge
        date,                 ///< when it finished, as text
        summary,              ///< numbers of items: all, restored and failed
        freed,                ///< size of all items, as text
        status,               ///< a `State`
        recordId,             ///< id, for `RecordItemsModel.recordId`
    };
    Q_ENUM(Role)

    explicit HistoryModel(AppModel& app = AppModelElement::model());

    /// Starts putting the row's items back; `restored` follows. Ignored unless the row is restorable and the
    /// program may write the history.
    Q_INVOKABLE void restore(int row);

Q_SIGNALS:
    /// A restore has ended, with one line for the user.
    void restored(const QString& message);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        Uuid id;
        TimePoint date;
        Message title;
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

    AppModel& m_app;
    std::vector<Row> m_rows;
};

} // namespace orlen

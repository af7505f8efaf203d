#pragma once

#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The past clean-ups as rows, newest first, and the way back from each of them. Main thread.
class HistoryModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT

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
    Q_ENUM(Role)

    explicit HistoryModel(AppModel& app = AppModelElement::model());

    /// Starts to put the row's items back; `restored` follows. Ignored unless the row is restorable and the
    /// program may write.
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

    AppModel& m_app;
    std::vector<Row> m_rows;
};

} // namespace orlen

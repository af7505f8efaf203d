#pragma once

#include "app/Workers.h"
#include "window/history/Whereabouts.h"
#include "window/lists/RowsModel.h"
#include "window/lists/WordSearch.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// The past clean-ups as rows, each of which can be restored. What is left of them in the Trash is looked up
/// on a worker and shown later. Main thread.
class HistoryModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Words that must all appear in the title of a clean-up, or in the path of one of its items.
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(Order order READ order WRITE setOrder NOTIFY orderChanged)
    /// Whether there is any clean-up, found by the query or not.
    Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
    /// What all clean-ups freed, and what the Trash still holds of it; empty until looked up.
    Q_PROPERTY(QString total READ total NOTIFY changed)

public:
    enum State {
        Restorable, ///< has items that are not back
        Restoring,  ///< is being put back
        Restored,   ///< every item is back
        Gone,       ///< nothing of it is in the Trash any more
    };
    Q_ENUM(State)

    enum Order {
        ByDate, ///< newest first
        BySize, ///< largest first
    };
    Q_ENUM(Order)

    enum class Role {
        title = Qt::UserRole, ///< of the plan
        symbol,               ///< icon name
        tone,                 ///< colour of the badge
        date,                 ///< when it finished, as text
        summary,              ///< numbers of items: all, restored and failed
        freed,                ///< size of all items, as text
        status,               ///< a `State`
        progress,             ///< of a restore: from 0 to 1
        progressText,         ///< of a restore: "12 of 340"
        stopping,             ///< whether a restore was asked to stop
        recordId,             ///< id, for `RecordItemsModel.recordId`
    };
    Q_ENUM(Role)

    explicit HistoryModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString query() const { return m_query; }
    void setQuery(const QString& query);
    [[nodiscard]] Order order() const { return m_order; }
    void setOrder(Order order);
    [[nodiscard]] bool isEmpty() const { return m_app.cleanUps()->history().empty(); }
    [[nodiscard]] QString total() const;

    /// The id of the record in this row; empty if there is no such row.
    Q_INVOKABLE [[nodiscard]] QString idAt(int row) const;
    /// Looks up again what the Trash still holds.
    Q_INVOKABLE void lookUp();
    /// Starts putting the row's items back; a notice tells how it ended. Ignored unless the row is restorable
    /// and the program may write the history.
    Q_INVOKABLE void restore(int row);
    /// Stops the row's restore after the current item; ignored when there is none.
    Q_INVOKABLE void stop(int row);

Q_SIGNALS:
    void queryChanged();
    void orderChanged();
    void changed();

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
        bool isGone = false;
        std::optional<RestoreState> restoring;

        friend bool operator==(const Row&, const Row&) = default;
    };
    using Sums = std::map<std::string, Whereabouts::Sums>; ///< by the records' ids

    [[nodiscard]] Row rowOf(const CleanRecord& record) const;
    [[nodiscard]] bool isFound(const CleanRecord& record) const;
    [[nodiscard]] static State stateOf(const Row& row);
    [[nodiscard]] static QString summaryOf(const Row& row);
    void update();
    void showProgress(const Uuid& record);

    AppModel& m_app;
    QString m_query;
    WordSearch m_search;
    Order m_order = ByDate;
    std::vector<Row> m_rows;
    std::optional<Sums> m_sums;
    Latest m_lookUp;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

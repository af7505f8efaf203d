#pragma once

#include "app/Workers.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// The items of one past clean-up as rows, in the order they were moved. Whether they are still in the Trash
/// is looked up on a worker and shown later. Main thread.
class RecordItemsModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// From `HistoryModel`'s role of that name; no rows while empty.
    Q_PROPERTY(QString recordId READ recordId WRITE setRecordId NOTIFY recordIdChanged)
    /// Words that must all appear in the path of an item; when they are in none, all items are shown.
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)

public:
    enum State {
        Unknown,     ///< not looked up yet
        InTrash,     ///< still in the Trash
        Restored,    ///< was put back
        Gone,        ///< neither: the Trash was emptied, or the item was moved
        NotRestored, ///< still in the Trash, after a restore that failed
    };
    Q_ENUM(State)

    enum class Role {
        name = Qt::UserRole, ///< last component of the original path
        folder,              ///< original folder
        size,                ///< bytes as text
        status,              ///< a `State`
        statusText,          ///< the state in words
        remedy,              ///< after a restore that failed, what to do; may be empty
        restorable,          ///< whether it can be put back now
    };
    Q_ENUM(Role)

    explicit RecordItemsModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString recordId() const { return m_recordId; }
    void setRecordId(const QString& id);

    [[nodiscard]] QString query() const { return m_query; }
    void setQuery(const QString& query);

    /// Shows a restored item in the file manager; ignored for others.
    Q_INVOKABLE void reveal(int row) const;
    /// Starts putting one item back, if it is restorable; a notice tells how it ended. Shows a restored one
    /// in the file manager.
    Q_INVOKABLE void activate(int row);
    /// Looks up again where the items are.
    Q_INVOKABLE void lookUp();
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

Q_SIGNALS:
    void recordIdChanged();
    void queryChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        TrashedItem item;
        State state = Unknown;
        std::optional<FailureReason> failure{}; ///< of the last restore
    };

    [[nodiscard]] bool isRestorable(const Row& row) const;
    [[nodiscard]] static QString textOf(const Row& row);
    [[nodiscard]] const CleanRecord* record() const;
    [[nodiscard]] std::vector<TrashedItem> foundItems() const;

    void update();
    void setStates(const std::vector<State>& states);

    AppModel& m_app;
    QString m_recordId;
    QString m_query;
    std::vector<Row> m_rows;
    Latest m_lookUp;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

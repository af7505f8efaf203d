#pragma once

#include "window/lists/RowSteps.h"
#include "window/lists/RowSubject.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orlen {

/// Base of all list models for QML. A model lists its roles in an `enum class Role` with Q_ENUM, starting at
/// `Qt::UserRole`; QML uses the same names. Main thread.
class RowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It is the base of all lists")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    explicit RowsModel(QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const final;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const final;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const final;

    /// What the menu of a row is about. Nothing for a row that has no menu or does not exist.
    [[nodiscard]] virtual std::optional<RowSubject> subject(int row) const;
    /// Ticks the rows whose items lie in this folder, except those that are rated Keep or ticked alone.
    virtual void tickIn(const std::string& folder);

Q_SIGNALS:
    /// Also emitted when as many rows were added as removed.
    void countChanged();

protected:
    [[nodiscard]] virtual int length() const = 0;
    /// For an existing row. `role` is a `Role` of the model, or one of Qt's own, which have no value.
    [[nodiscard]] virtual QVariant value(std::size_t number, int role) const = 0;

    [[nodiscard]] bool hasRow(int row) const { return row >= 0 && row < length(); }

    /// The state of a box that stands for `all` boxes, of which `checked` are checked.
    [[nodiscard]] static Qt::CheckState checkStateOf(std::int64_t checked, std::size_t all);

    /// Signals that these roles of the rows changed; without roles, all of them.
    template <typename... Roles>
    void rowsChanged(int first, int last, Roles... roles)
    {
        Q_EMIT dataChanged(index(first), index(last), {static_cast<int>(roles)...});
    }
    template <typename... Roles>
    void rowChanged(std::size_t row, Roles... roles)
    {
        rowsChanged(static_cast<int>(row), static_cast<int>(row), roles...);
    }
    template <typename... Roles>
    void allChanged(Roles... roles)
    {
        if (length() > 0)
            rowsChanged(0, length() - 1, roles...);
    }

    /// Turns `rows` into `wanted` step by step; rows with the same `key`, a string, keep their identity.
    /// Resets the model when that takes too many steps.
    template <typename Row, typename Key>
    void setRows(std::vector<Row>& rows, std::vector<Row> wanted, Key key)
    {
        const std::vector<RowStep> steps = RowSteps::between(keysOf(rows, key), keysOf(wanted, key));
        if (steps.size() > kMostSteps) {
            resetRows(rows, std::move(wanted));
            return;
        }
        for (const RowStep& step : steps)
            take(step, rows, wanted);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (rows[row] == wanted[row])
                continue;
            rows[row] = std::move(wanted[row]);
            rowChanged(row);
        }
    }

    template <typename Rows>
    void resetRows(Rows& rows, Rows wanted)
    {
        beginResetModel();
        rows = std::move(wanted);
        endResetModel();
    }

private:
    static constexpr std::size_t kMostSteps = 100;

    template <typename Row, typename Key>
    [[nodiscard]] static std::vector<std::string> keysOf(const std::vector<Row>& rows, Key key)
    {
        std::vector<std::string> keys;
        keys.reserve(rows.size());
        for (const Row& row : rows)
            keys.emplace_back(std::invoke(key, row));
        return keys;
    }

    template <typename Row>
    void take(const RowStep& step, std::vector<Row>& rows, const std::vector<Row>& wanted)
    {
        const auto at = rows.begin() + step.row;
        switch (step.kind) {
        case RowStep::Kind::remove:
            beginRemoveRows({}, step.row, step.row + step.count - 1);
            rows.erase(at, at + step.count);
            endRemoveRows();
            break;
        case RowStep::Kind::insert: {
            const auto from = wanted.begin() + step.row;
            beginInsertRows({}, step.row, step.row + step.count - 1);
            rows.insert(at, from, from + step.count);
            endInsertRows();
            break;
        }
        case RowStep::Kind::move:
            beginMoveRows({}, step.row, step.row, {}, step.to);
            std::rotate(rows.begin() + step.to, at, at + 1);
            endMoveRows();
            break;
        }
    }
};

} // namespace orlen

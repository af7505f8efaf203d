#pragma once

#include "window/lists/WordSearch.h"
#include "window/startup/StartupListModel.h"

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The startup items that match the filter, the user's own first, sorted as the user wants. Roles are those
/// of `StartupListModel`. Main thread.
class StartupOrderModel : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::StartupListModel* list READ list WRITE setList NOTIFY listChanged REQUIRED)
    /// Words that must all appear in what is told about an item; case is ignored.
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(Order order READ order NOTIFY orderChanged)
    Q_PROPERTY(bool reversed READ isReversed NOTIFY orderChanged)

public:
    enum Order { ByKind, ByName };
    Q_ENUM(Order)

    explicit StartupOrderModel(QObject* parent = nullptr);

    [[nodiscard]] StartupListModel* list() const { return m_list; }
    void setList(StartupListModel* list);
    [[nodiscard]] QString filter() const { return m_filter; }
    void setFilter(const QString& filter);
    [[nodiscard]] Order order() const { return m_order; }
    [[nodiscard]] bool isReversed() const { return m_isReversed; }

    /// Sorts by this order, or the other way around if it is the current one.
    Q_INVOKABLE void sortBy(int order);
    /// The row of `list` that this row shows.
    [[nodiscard]] Q_INVOKABLE int listRow(int row) const;
    /// Switches an item, see `StartupListModel`.
    Q_INVOKABLE void toggle(int row);

Q_SIGNALS:
    void listChanged();
    void filterChanged();
    void orderChanged();

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    [[nodiscard]] QString text(const QModelIndex& item, StartupListModel::Role role) const;

    StartupListModel* m_list = nullptr;
    QString m_filter;
    WordSearch m_search;
    Order m_order = ByKind;
    bool m_isReversed = false;
};

} // namespace orlen

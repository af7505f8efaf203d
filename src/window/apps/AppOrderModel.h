#pragma once

#include "window/apps/AppListModel.h"
#include "window/lists/WordSearch.h"

#include <QSortFilterProxyModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// The applications that match the search, sorted as the user wants. Roles are those of `AppListModel`. Main
/// thread.
class AppOrderModel : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppListModel* list READ list WRITE setList NOTIFY listChanged REQUIRED)
    /// Words that must all appear in an application's name, kind or place; case is ignored.
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    /// The kinds of applications that there are, after a text for all of them; and which of these is shown.
    Q_PROPERTY(QStringList sources READ sources NOTIFY sourcesChanged)
    Q_PROPERTY(int source READ source WRITE setSource NOTIFY sourcesChanged)
    Q_PROPERTY(Order order READ order WRITE setOrder NOTIFY orderChanged)

public:
    enum Order {
        ByName,
        BySize, ///< largest first, unmeasured ones last
        ByUse,  ///< longest unused first, unknown ones last
    };
    Q_ENUM(Order)

    explicit AppOrderModel(QObject* parent = nullptr);

    [[nodiscard]] AppListModel* list() const { return m_list; }
    void setList(AppListModel* list);
    [[nodiscard]] QString query() const { return m_query; }
    void setQuery(const QString& query);
    [[nodiscard]] QStringList sources() const;
    [[nodiscard]] int source() const;
    void setSource(int number);
    [[nodiscard]] Order order() const { return m_order; }
    void setOrder(Order order);

    /// The row of `list` that this row shows.
    Q_INVOKABLE [[nodiscard]] int listRow(int row) const;

Q_SIGNALS:
    void listChanged();
    void queryChanged();
    void sourcesChanged();
    void orderChanged();

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    [[nodiscard]] const AppInfo& appAt(int listRow) const;

    void findSources();

    AppListModel* m_list = nullptr;
    std::vector<AppSource> m_sources;
    std::optional<AppSource> m_source; ///< nothing: all of them
    QString m_query;
    WordSearch m_search;
    Order m_order = ByName;
};

} // namespace orlen

#pragma once

#include "clean/Exclusion.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// What is never offered as rows, in the order it was added, filtered as the user wants. Main thread.
class ExclusionListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Only rows that contain this are listed; case is ignored.
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    /// How many there are, whatever the filter.
    Q_PROPERTY(int total READ total NOTIFY totalChanged)
    /// What stands in place of the rows when there are none at all.
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)

public:
    enum class Role {
        what = Qt::UserRole, ///< a path with "~" for the home folder, or a name
        kind,                ///< which of the two it is, as text
        symbol,              ///< icon name
    };
    Q_ENUM(Role)

    explicit ExclusionListModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString filter() const { return m_filter; }
    void setFilter(const QString& filter);
    [[nodiscard]] int total() const;
    [[nodiscard]] static QString emptyText();

    /// Removes the row's line from the list, which a notice tells; ignored if there is no such row.
    Q_INVOKABLE void remove(int row);
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

Q_SIGNALS:
    void filterChanged();
    void totalChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_lines.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    void update();

    AppModel& m_app;
    QString m_filter;
    std::vector<Exclusion> m_lines;
};

} // namespace orlen

#pragma once

#include "model/CleanFailure.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The items that a clean-up or restore could not move, grouped by reason. Main thread.
class FailureListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum class Role {
        name = Qt::UserRole, ///< last path component
        folder,              ///< that contains it
        reason,              ///< in a few words
        startsReason,        ///< whether the row above has another reason
        remedy,              ///< what to do about this group; may be empty
    };
    Q_ENUM(Role)

    /// Whether the items are where they were, or still in the Trash.
    enum class Where { inPlace, inTrash };

    explicit FailureListModel(Where where = Where::inPlace) : m_where(where) {}

    /// Keeps the order within each reason.
    void setFailures(std::vector<CleanFailure> failures);
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_failures.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    Where m_where;
    std::vector<CleanFailure> m_failures; ///< in the order of the rows
};

} // namespace orlen

#pragma once

#include "model/CleanFailure.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The items that a clean-up or a restore left where they were, reason by reason. Main thread.
class FailureListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum class Role {
        name = Qt::UserRole, ///< last component
        folder,              ///< where it lies
        reason,              ///< why, in a few words
        startsReason,        ///< whether the row before has another reason
        remedy,              ///< what to do about all of this reason; may be empty
    };

    using QAbstractListModel::QAbstractListModel;

    /// In each reason the order stays.
    void setFailures(std::vector<CleanFailure> failures);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<CleanFailure> m_failures; ///< in the order of the rows
};

} // namespace orlen

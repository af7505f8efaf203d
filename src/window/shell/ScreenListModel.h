#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The rows of the sidebar: one for each screen, in order. Never changes.
class ScreenListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum class Role {
        title = Qt::UserRole, ///< text
        symbol,               ///< icon name
        tone,                 ///< colour of the badge
        section,              ///< heading of its group, the same for neighbours of one group
        screen,               ///< number that `Navigation.screen` takes
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace orlen

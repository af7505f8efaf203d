#pragma once

#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The rows of the sidebar: one for each screen, in order. Never changes.
class ScreenListModel : public orlen::RowsModel {
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
    Q_ENUM(Role)

    using RowsModel::RowsModel;

private:
    [[nodiscard]] int length() const override;
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;
};

} // namespace orlen

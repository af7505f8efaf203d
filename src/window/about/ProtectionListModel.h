#pragma once

#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

namespace orlen {

/// What is never moved, and why, as the rules themselves have it. Main thread.
class ProtectionListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum class Role {
        label = Qt::UserRole, ///< "Browser profiles"
        reason,               ///< "Passwords, history and open tabs."
    };
    Q_ENUM(Role)

private:
    [[nodiscard]] int length() const override;
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;
};

} // namespace orlen

#pragma once

#include "tools/advice/AdviceItem.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// What others keep on the disk and how to free it, as rows. Main thread.
class AdviceModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The category has it.")

public:
    enum class Role {
        title = Qt::UserRole, ///< a few words
        place,                ///< the folder, with "~" for the home folder
        size,                 ///< as text, or why there is none
        text,                 ///< what it is and what the command does
        command,              ///< for a terminal; empty if there is none
    };
    Q_ENUM(Role)

    using RowsModel::RowsModel;

    void setAdvice(std::vector<AdviceItem> advice);

    /// Copies the row's command to the clipboard.
    Q_INVOKABLE void copy(int row) const;

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    std::vector<AdviceItem> m_rows;
};

} // namespace orlen

#pragma once

#include "window/lists/RowsModel.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <span>
#include <string>
#include <vector>

namespace orlen {

/// The way from the start folder down to the one that the disk map shows. Of a long way the first folder and
/// the last ones remain, with a gap between that stands for the folder just above them. Main thread.
class BreadcrumbModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The disk map has it.")

public:
    enum class Role {
        name = Qt::UserRole, ///< of the folder
        step,                ///< number of the folder, for going to it
        isGap,               ///< stands for folders that are not shown
        isLast,              ///< the folder shown
    };
    Q_ENUM(Role)

    using RowsModel::RowsModel;

    /// What the last of the folders is called: the start folder is "Home", whatever its name.
    [[nodiscard]] static QString nameOfLast(std::span<const std::string> folders);

    /// From the start folder on; never empty.
    void setFolders(const std::vector<std::string>& folders);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        QString name;
        int step = 0;
        bool isGap = false;
        bool isLast = false;

        friend bool operator==(const Row&, const Row&) = default;
    };

    [[nodiscard]] static std::vector<Row> rowsOf(const std::vector<std::string>& folders);

    std::vector<Row> m_rows;
};

} // namespace orlen

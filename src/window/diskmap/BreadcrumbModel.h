#pragma once

#include "window/lists/RowsModel.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <span>
#include <string>
#include <vector>

namespace orlen {

/// The path from the start folder to the one the disk map shows. A long path is cut to its first and last
/// folders, with a gap between them that links to the folder just above the last ones. Main thread.
class BreadcrumbModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The disk map has it.")

public:
    enum class Role {
        name = Qt::UserRole, ///< of the folder
        step,                ///< index of the folder, for `DiskMapView.goTo`
        isGap,               ///< stands for folders that are not shown
        isLast,              ///< the folder shown
    };
    Q_ENUM(Role)

    using RowsModel::RowsModel;

    /// Name of a start folder: "Home" for the home folder, the path of any other.
    [[nodiscard]] static QString startName(const std::string& folder);
    /// Display name of the last folder.
    [[nodiscard]] static QString nameOfLast(std::span<const std::string> folders);

    /// Starts with the start folder; never empty.
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

#pragma once

#include "scan/CategoryFolder.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// The folders that a storage category consists of as rows, largest first. Main thread.
class CategoryFolderModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The category has it.")

public:
    enum class Role {
        name = Qt::UserRole, ///< last part of the path, or what the row stands for
        place,               ///< the path, with "~" for the home folder
        items,               ///< its largest items with their sizes; empty if there are none
        size,                ///< as text
        share,               ///< part of the category, 0 to 1
        shareText,           ///< the same as a percentage
        isSeen,              ///< false for what the category holds besides
        isInHome,            ///< whether the disk map can show it
    };
    Q_ENUM(Role)

    using RowsModel::RowsModel;

    /// `whole` is the size of the category. `unseen`, unless 0, is what the folders leave of it, and becomes
    /// the last row.
    void setFolders(std::vector<CategoryFolder> folders, std::int64_t whole, std::int64_t unseen);

    /// Whether the row is a folder at or below the home folder.
    [[nodiscard]] bool isInHome(int row) const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;
    /// Empty if the row is not a folder.
    [[nodiscard]] std::string path(int row) const;

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        CategoryFolder folder;
        double share = 0;
        bool isSeen = true;

        friend bool operator==(const Row&, const Row&) = default;
    };

    std::vector<Row> m_rows;
};

} // namespace orlen

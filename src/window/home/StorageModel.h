#pragma once

#include "app/AppModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The storage breakdown as rows, one for each category that takes space, in the order of the categories;
/// beside them the figures of the whole volume. Main thread.
class StorageModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// False until the first breakdown has been computed.
    Q_PROPERTY(bool ready READ isReady NOTIFY changed)
    Q_PROPERTY(QString freeText READ freeText NOTIFY changed)
    Q_PROPERTY(QString totalText READ totalText NOTIFY changed)
    /// Used part of the volume, 0 to 1.
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY changed)

public:
    enum class Role {
        label = Qt::UserRole, ///< name of the category
        colour,               ///< of the category
        size,                 ///< its bytes as text
        fraction,             ///< its part of the volume's capacity, 0 to 1
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    [[nodiscard]] bool isReady() const;
    [[nodiscard]] QString freeText() const;
    [[nodiscard]] QString totalText() const;
    [[nodiscard]] double usedFraction() const;
    /// The category's part of the volume's capacity, 0 to 1.
    [[nodiscard]] double fraction(OrlenCategory category) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void appChanged();
    void changed();

private:
    struct Row {
        OrlenCategory category;
        std::int64_t bytes = 0;
    };

    void update();

    AppModel* m_app = nullptr;
    std::vector<Row> m_rows;
};

} // namespace orlen

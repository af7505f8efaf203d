#pragma once

#include "app/AppModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The findings of the last scan as cards, in display order. Findings that vanish or shrink in a clean-up
/// change only their own rows; a new scan replaces all. While a sheet covers the cards they keep the
/// selection they had. Main thread.
class FindingListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)

public:
    enum class Role {
        findingId = Qt::UserRole, ///< identity, which `Navigation.showFinding` takes
        title,                    ///< text
        symbol,                   ///< icon name
        tone,                     ///< colour of its category
        rating,                   ///< raw value
        ratingLabel,              ///< word on the chip
        ratingSymbol,             ///< icon name
        size,                     ///< bytes of all entries, as text
        count,                    ///< "1 item", "12,345 items"
        selected,                 ///< bytes of the selected entries, as text; empty when there are none
        cleanable,                ///< false for what is only shown
        reason,                   ///< a sentence that explains the rating, or what the finding is
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] AppModel* app() const { return m_app; }
    void setApp(AppModel* app);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void appChanged();

private:
    struct Row {
        FindingKind kind;
        Rating rating;
        bool isCleanable;
        std::string reason;
        std::int64_t size;
        std::int64_t count;
        std::int64_t selectedSize;

        friend bool operator==(const Row&, const Row&) = default;
    };

    [[nodiscard]] std::vector<Row> currentRows() const;
    void followFindings();
    void followSelection();
    void removeMissing(const std::vector<Row>& rows);
    void updateDifferent(std::vector<Row> rows);

    AppModel* m_app = nullptr;
    std::vector<Row> m_rows;
};

} // namespace orlen

#pragma once

#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The notable findings of the last scan as cards, in display order. A clean-up changes only the rows of the
/// findings it touches. While a sheet covers the cards, their selection is not updated. Main thread.
class FindingListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT

public:
    enum class Role {
        findingId = Qt::UserRole, ///< id for `Navigation.showFinding`
        title,
        symbol,
        tone,      ///< colour of its category
        rating,    ///< a `RatingValue`
        size,      ///< of all entries, as text
        count,     ///< "1 item", "12,345 items"
        selected,  ///< of the selected entries, as text; empty when there are none
        cleanable, ///< false if it is only shown
    };
    Q_ENUM(Role)

    explicit FindingListModel(AppModel& app = AppModelElement::model());

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        FindingKind kind;
        Rating rating;
        bool isCleanable;
        std::int64_t size;
        std::int64_t count;
        std::int64_t selectedSize;

        friend bool operator==(const Row&, const Row&) = default;
    };

    void followFindings();
    void followSelection();

    AppModel& m_app;
    std::vector<Row> m_rows;
};

} // namespace orlen

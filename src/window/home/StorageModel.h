#pragma once

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The storage breakdown as rows, one per category that takes space, in category order, with the totals of
/// the volume. Main thread.
class StorageModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// False until the first breakdown has been computed.
    Q_PROPERTY(bool ready READ isReady NOTIFY changed)
    Q_PROPERTY(QString freeText READ freeText NOTIFY changed)
    /// "120 GB free"
    Q_PROPERTY(QString freeSentence READ freeSentence NOTIFY changed)
    Q_PROPERTY(QString totalText READ totalText NOTIFY changed)
    /// Used fraction of the volume, 0 to 1.
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY changed)

public:
    enum class Role {
        label = Qt::UserRole, ///< name of the category
        colour,               ///< of the category
        size,                 ///< as text
        category,             ///< its place in the order of categories
    };
    Q_ENUM(Role)

    explicit StorageModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isReady() const { return m_app.storage()->isBreakdownReady(); }
    [[nodiscard]] QString freeText() const { return DisplayText::size(m_app.storage()->breakdown().free); }
    [[nodiscard]] QString freeSentence() const
    {
        return DisplayText::text(
            Message(WindowTexts::kFree, {{"size", Bytes{m_app.storage()->breakdown().free}}}));
    }
    [[nodiscard]] QString totalText() const { return DisplayText::size(m_app.storage()->breakdown().total); }
    [[nodiscard]] double usedFraction() const;
    /// The category's fraction of the volume's capacity, 0 to 1.
    [[nodiscard]] double fraction(OrlenCategory category) const;
    /// "System, 120 GB", by its place in the order of categories; empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString describe(int category) const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        OrlenCategory category;
        std::int64_t bytes = 0;

        friend bool operator==(const Row&, const Row&) = default;
    };

    void update();

    AppModel& m_app;
    std::vector<Row> m_rows;
};

} // namespace orlen

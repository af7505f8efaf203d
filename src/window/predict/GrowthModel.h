#pragma once

#include "insight/Growth.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace orlen {

/// The folders that grew since an earlier scan as rows, most growth first. Main thread.
class GrowthModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Back to which scan it compares with the last one.
    Q_PROPERTY(Period period MEMBER m_period NOTIFY periodChanged)
    /// Says since when the folders grew, or why there are none.
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)

public:
    enum class Role {
        name = Qt::UserRole, ///< last part of the path
        place,               ///< the path, with "~" for the home folder
        growth,              ///< what it grew by as text, with a sign
        extent,              ///< the growth, where the largest is 1
        code,                ///< `PathCode` for the disk map; empty if that cannot show it
    };
    Q_ENUM(Role)
    enum Period { LastScan, Week, Month };
    Q_ENUM(Period)

    explicit GrowthModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString sentence() const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;

Q_SIGNALS:
    void periodChanged();
    void changed();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    void update();

    AppModel& m_app;
    Period m_period = LastScan;
    std::optional<Growth> m_growth; ///< without its folders
    std::vector<Growth::Folder> m_rows;
};

} // namespace orlen

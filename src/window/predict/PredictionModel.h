#pragma once

#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/predict/ForecastCurve.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The growth forecast in sentences, with each category's growth as rows, fastest first. Main thread.
class PredictionModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    /// Whether the disk will be full soon.
    Q_PROPERTY(bool warn READ warns NOTIFY changed)
    /// False while the history is too short for a forecast.
    Q_PROPERTY(bool enoughData READ hasEnoughData NOTIFY changed)
    /// How many snapshots are kept, where, and what they are good for.
    Q_PROPERTY(QString snapshotsText READ snapshotsText NOTIFY changed)
    /// When its figures are of, and when the disk will be full if that can be told; empty without a forecast.
    Q_PROPERTY(QString asOf READ asOf NOTIFY changed)
    /// Where the chart ends: the day the disk is full, if it shows that.
    Q_PROPERTY(QString endDate READ endDate NOTIFY changed)
    Q_PROPERTY(bool reachesFull READ reachesFull NOTIFY changed)
    /// Dates of the oldest and newest snapshot, and the free space at the newest; empty without snapshots.
    Q_PROPERTY(QString firstDate READ firstDate NOTIFY changed)
    Q_PROPERTY(QString lastDate READ lastDate NOTIFY changed)
    Q_PROPERTY(QString freeText READ freeText NOTIFY changed)
    /// "120 GB free", of the same.
    Q_PROPERTY(QString freeSentence READ freeSentence NOTIFY changed)

public:
    enum class Role {
        label = Qt::UserRole, ///< name of the category
        colour,               ///< of the category
        rate,                 ///< growth per week as text, with a sign
        start,                ///< of the bar, 0 to 1; shrinking categories extend to the left
        extent,               ///< length of the bar, 0 to 1
    };
    Q_ENUM(Role)

    explicit PredictionModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString headline() const { return DisplayText::text(m_prediction.headline); }
    [[nodiscard]] QString detail() const { return DisplayText::text(m_prediction.detail); }
    [[nodiscard]] bool warns() const { return m_prediction.warn; }
    [[nodiscard]] bool hasEnoughData() const { return m_prediction.enoughData; }
    [[nodiscard]] QString snapshotsText() const;
    [[nodiscard]] QString asOf() const;
    [[nodiscard]] QString endDate() const;
    [[nodiscard]] bool reachesFull() const;
    [[nodiscard]] QString firstDate() const;
    [[nodiscard]] QString lastDate() const;
    [[nodiscard]] QString freeText() const;
    [[nodiscard]] QString freeSentence() const;
    /// For the chart; empty while there is too little data.
    [[nodiscard]] const ForecastCurve& curve() const { return m_curve; }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_prediction.perCategory.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    /// The range of rates that the bars are scaled to, in bytes per day.
    struct Range {
        double least = 0;
        double most = 0;
    };

    void update();
    [[nodiscard]] Range range() const;
    [[nodiscard]] bool hasSnapshots() const { return !m_app.storage()->snapshots().empty(); }

    AppModel& m_app;
    Prediction m_prediction;
    ForecastCurve m_curve;
};

} // namespace orlen

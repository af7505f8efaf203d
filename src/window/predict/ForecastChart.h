#pragma once

#include "window/predict/PredictionModel.h"

#include <QColor>
#include <QPointF>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Draws past free space as a solid line, its forecast as a dotted one, and the full disk as a dashed line at
/// the bottom; only the latter while there is no forecast. QML adds the labels. Main thread.
class ForecastChart : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::PredictionModel* model READ model WRITE setModel NOTIFY modelChanged REQUIRED)
    Q_PROPERTY(QColor tone MEMBER m_tone NOTIFY coloursChanged)
    /// For the full disk and the grid lines.
    Q_PROPERTY(QColor rule MEMBER m_rule NOTIFY coloursChanged)
    Q_PROPERTY(QColor faint MEMBER m_faint NOTIFY coloursChanged)
    /// The newest known point, in the item's coordinates.
    Q_PROPERTY(QPointF now READ now NOTIFY nowChanged)

public:
    explicit ForecastChart(QQuickItem* parent = nullptr);

    [[nodiscard]] PredictionModel* model() const { return m_model; }
    void setModel(PredictionModel* model);
    [[nodiscard]] QPointF now() const;

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void modelChanged();
    void coloursChanged();
    void nowChanged();

private:
    [[nodiscard]] QPointF place(ForecastCurve::Point point) const;
    void paintScale(QPainter& painter) const;
    void paintKnown(QPainter& painter, const ForecastCurve& curve) const;
    void paintLines(QPainter& painter, const ForecastCurve& curve) const;

    PredictionModel* m_model = nullptr;
    QColor m_tone;
    QColor m_rule;
    QColor m_faint;
};

} // namespace orlen

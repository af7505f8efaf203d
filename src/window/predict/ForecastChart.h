#pragma once

#include "window/predict/PredictionModel.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

#include <optional>

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
    /// For the figures of the scale.
    Q_PROPERTY(QColor ink MEMBER m_ink NOTIFY coloursChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY coloursChanged)
    /// The point that is looked at, in the item's coordinates, and what it says; empty if there is none.
    Q_PROPERTY(QPointF mark READ mark NOTIFY markChanged)
    Q_PROPERTY(QString markText READ markText NOTIFY markChanged)
    /// Where the forecast ends, in the item's coordinates.
    Q_PROPERTY(QPointF end READ end NOTIFY nowChanged)
    /// The newest known point, in the item's coordinates.
    Q_PROPERTY(QPointF now READ now NOTIFY nowChanged)

public:
    explicit ForecastChart(QQuickItem* parent = nullptr);

    [[nodiscard]] PredictionModel* model() const { return m_model; }
    void setModel(PredictionModel* model);
    [[nodiscard]] QPointF now() const;

    [[nodiscard]] QPointF end() const;
    [[nodiscard]] QPointF mark() const { return m_mark ? place(*m_mark) : QPointF(); }
    [[nodiscard]] QString markText() const;

    /// Looks at the point nearest to a place.
    Q_INVOKABLE void markAt(double x);
    /// Looks at the next point to the right or, below 0, to the left; at first at the newest.
    Q_INVOKABLE void step(int direction);
    Q_INVOKABLE void removeMark();

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void modelChanged();
    void coloursChanged();
    void nowChanged();
    void markChanged();

private:
    [[nodiscard]] QPointF place(ForecastCurve::Point point) const;
    void setMark(std::optional<ForecastCurve::Point> mark);
    void follow();
    void paintScale(QPainter& painter) const;
    void paintMark(QPainter& painter) const;
    void paintKnown(QPainter& painter, const ForecastCurve& curve) const;
    void paintLines(QPainter& painter, const ForecastCurve& curve) const;

    PredictionModel* m_model = nullptr;
    QColor m_tone;
    QColor m_rule;
    QColor m_faint;
    QColor m_ink;
    QFont m_font;
    std::optional<ForecastCurve::Point> m_mark;
};

} // namespace orlen

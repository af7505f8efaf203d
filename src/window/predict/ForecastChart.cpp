#include "window/predict/ForecastChart.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <vector>

namespace orlen {

namespace {

constexpr double kLineWidth = 2.5;
/// Room at the bottom for the full-disk line.
constexpr double kBottom = 4;
constexpr int kScaleLines = 3;

/// Tangents of a curve through all points that rises and falls only where they do (Fritsch and Carlson,
/// 1980): a plain spline would show free space that never existed.
std::vector<double> tangents(const std::vector<QPointF>& points)
{
    const std::size_t last = points.size() - 1;
    std::vector<double> slopes(last);
    for (std::size_t i = 0; i < last; ++i) {
        const QPointF step = points[i + 1] - points[i];
        slopes[i] = step.x() > 0 ? step.y() / step.x() : 0;
    }
    std::vector<double> result(points.size());
    result.front() = slopes.front();
    result.back() = slopes.back();
    for (std::size_t i = 1; i < last; ++i) {
        const double product = slopes[i - 1] * slopes[i];
        result[i] = product > 0 ? 2 * product / (slopes[i - 1] + slopes[i]) : 0;
    }
    return result;
}

QPainterPath smoothPath(const std::vector<QPointF>& points)
{
    const std::vector<double> slopes = tangents(points);
    QPainterPath path(points.front());
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double third = (points[i + 1].x() - points[i].x()) / 3;
        path.cubicTo(points[i] + QPointF(third, third * slopes[i]),
                     points[i + 1] - QPointF(third, third * slopes[i + 1]), points[i + 1]);
    }
    return path;
}

QColor faded(QColor colour, double opacity)
{
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

} // namespace

ForecastChart::ForecastChart(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ForecastChart::coloursChanged, this, [this] { update(); });
    connect(this, &QQuickItem::widthChanged, this, &ForecastChart::nowChanged);
    connect(this, &QQuickItem::heightChanged, this, &ForecastChart::nowChanged);
}

void ForecastChart::setModel(PredictionModel* model)
{
    if (m_model == model)
        return;
    if (m_model != nullptr)
        m_model->disconnect(this);
    m_model = model;
    if (m_model != nullptr) {
        connect(m_model, &PredictionModel::changed, this, [this] { update(); });
        connect(m_model, &PredictionModel::changed, this, &ForecastChart::nowChanged);
    }
    Q_EMIT modelChanged();
    Q_EMIT nowChanged();
    update();
}

QPointF ForecastChart::now() const
{
    if (m_model == nullptr || m_model->curve().known.empty())
        return {};
    return place(m_model->curve().known.back());
}

QPointF ForecastChart::place(ForecastCurve::Point point) const
{
    return {kBottom + point.x * (width() - 2 * kBottom), (1 - point.y) * (height() - kBottom)};
}

void ForecastChart::paint(QPainter* painter)
{
    paintScale(*painter);
    if (m_model == nullptr || m_model->curve().known.size() < 2)
        return;
    paintKnown(*painter, m_model->curve());
    paintLines(*painter, m_model->curve());
}

void ForecastChart::paintScale(QPainter& painter) const
{
    painter.setPen(QPen(m_faint, 1));
    for (int line = 0; line < kScaleLines; ++line) {
        const double y = std::round(line * (height() - kBottom) / kScaleLines) + 0.5;
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
    }
    QPen dashed(m_rule, 1.5, Qt::CustomDashLine, Qt::FlatCap);
    dashed.setDashPattern({4, 4});
    painter.setPen(dashed);
    painter.drawLine(QPointF(0, height() - kBottom), QPointF(width(), height() - kBottom));
}

void ForecastChart::paintKnown(QPainter& painter, const ForecastCurve& curve) const
{
    std::vector<QPointF> points;
    points.reserve(curve.known.size());
    for (const ForecastCurve::Point point : curve.known)
        points.push_back(place(point));
    const QPainterPath line = smoothPath(points);

    QPainterPath area = line;
    area.lineTo(points.back().x(), height() - kBottom);
    area.lineTo(points.front().x(), height() - kBottom);
    area.closeSubpath();
    QLinearGradient shade(0, area.boundingRect().top(), 0, height() - kBottom);
    shade.setColorAt(0, faded(m_tone, 0.22));
    shade.setColorAt(1, faded(m_tone, 0.02));
    painter.fillPath(area, shade);

    painter.strokePath(line, QPen(m_tone, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_tone);
    painter.drawEllipse(points.back(), kBottom + 0.5, kBottom + 0.5);
    painter.setBrush(Qt::NoBrush);
}

void ForecastChart::paintLines(QPainter& painter, const ForecastCurve& curve) const
{
    if (curve.fitted) {
        painter.setPen(QPen(faded(m_tone, 0.45), 1.2));
        painter.drawLine(place(curve.fitted->first), place(curve.fitted->second));
    }
    if (curve.forecast) {
        QPen dotted(m_tone, kLineWidth, Qt::CustomDashLine, Qt::RoundCap);
        dotted.setDashPattern({0.01, 2.6});
        painter.setPen(dotted);
        painter.drawLine(place(curve.forecast->first), place(curve.forecast->second));
    }
}

} // namespace orlen

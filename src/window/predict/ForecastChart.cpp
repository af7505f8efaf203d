#include "window/predict/ForecastChart.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <QFontMetricsF>
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
    connect(this, &ForecastChart::nowChanged, this, &ForecastChart::markChanged);
    connect(this, &ForecastChart::markChanged, this, [this] { update(); });
}

void ForecastChart::setModel(PredictionModel* model)
{
    if (m_model == model)
        return;
    if (m_model != nullptr)
        m_model->disconnect(this);
    m_model = model;
    if (m_model != nullptr) {
        connect(m_model, &PredictionModel::changed, this, &ForecastChart::follow);
    }
    Q_EMIT modelChanged();
    follow();
}

void ForecastChart::follow()
{
    m_mark.reset();
    Q_EMIT nowChanged();
    update();
}

QPointF ForecastChart::end() const
{
    const bool isThere = m_model != nullptr && m_model->curve().forecast;
    return isThere ? place(m_model->curve().forecast->second) : now();
}

QString ForecastChart::markText() const
{
    if (!m_mark)
        return {};
    const ForecastCurve& curve = m_model->curve();
    return DisplayText::text(
        Message(m_mark->x > curve.known.back().x ? WindowTexts::kFreeAround : WindowTexts::kFreeOn,
                {{"date", Moment{curve.dateAt(m_mark->x), Moment::Form::day}},
                 {"size", Bytes{curve.bytesAt(m_mark->y)}}}));
}

void ForecastChart::markAt(double x)
{
    if (m_model != nullptr && width() > 2 * kBottom)
        setMark(m_model->curve().pointAt((x - kBottom) / (width() - 2 * kBottom)));
}

void ForecastChart::step(int direction)
{
    if (m_model == nullptr || m_model->curve().known.empty())
        return;
    if (!m_mark)
        setMark(m_model->curve().known.back());
    else if (const auto beside = m_model->curve().pointBeside(m_mark->x, direction))
        setMark(beside);
}

void ForecastChart::removeMark()
{
    setMark({});
}

void ForecastChart::setMark(std::optional<ForecastCurve::Point> mark)
{
    m_mark = mark;
    Q_EMIT markChanged();
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
    paintMark(*painter);
}

void ForecastChart::paintScale(QPainter& painter) const
{
    painter.setFont(m_font);
    const auto marks = m_model == nullptr ? std::vector<ForecastCurve::Mark>() : m_model->curve().scale;
    for (const ForecastCurve::Mark& mark : marks) {
        const double y = std::round(place({0, mark.y}).y()) + 0.5;
        painter.setPen(QPen(m_faint, 1));
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
        painter.setPen(m_ink);
        const double height = QFontMetricsF(painter.font()).height();
        const QRectF room(0, y - height, width(), height);
        // On the right, where free space is mostly lower. What would be cut at the top is left out.
        if (room.top() >= 0)
            painter.drawText(room, Qt::AlignRight | Qt::AlignBottom, DisplayText::size(mark.bytes));
    }
    QPen dashed(m_rule, 1.5, Qt::CustomDashLine, Qt::FlatCap);
    dashed.setDashPattern({4, 4});
    painter.setPen(dashed);
    painter.drawLine(QPointF(0, height() - kBottom), QPointF(width(), height() - kBottom));
}

void ForecastChart::paintMark(QPainter& painter) const
{
    if (!m_mark)
        return;
    const QPointF at = place(*m_mark);
    painter.setPen(QPen(m_rule, 1));
    painter.drawLine(QPointF(at.x(), 0), QPointF(at.x(), height() - kBottom));
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_tone);
    painter.drawEllipse(at, kBottom + 0.5, kBottom + 0.5);
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

#include "window/home/ProgressRing.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

namespace orlen {

namespace {

constexpr int kTop = 90 * 16;
constexpr int kFull = 360 * 16;

} // namespace

ProgressRing::ProgressRing(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &ProgressRing::changed, this, [this] { update(); });
}

void ProgressRing::paint(QPainter* painter)
{
    const double edge = m_thickness / 2;
    const QRectF circle = boundingRect().adjusted(edge, edge, -edge, -edge);
    painter->setPen(QPen(m_track, m_thickness));
    painter->drawEllipse(circle);
    const int span = static_cast<int>(std::clamp(m_value, 0.0, 1.0) * kFull);
    if (span == 0)
        return;
    painter->setPen(QPen(m_tone, m_thickness, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(circle, kTop, -span);
}

} // namespace orlen

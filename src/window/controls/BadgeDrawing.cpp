#include "window/controls/BadgeDrawing.h"

#include "window/controls/SymbolDrawing.h"

#include <QLinearGradient>
#include <QPainter>

namespace orlen::BadgeDrawing {

namespace {

constexpr double kRadius = 0.28;
constexpr double kSymbol = 0.61;

} // namespace

void draw(QPainter& painter, const QString& symbol, const QColor& colour, const QRectF& square)
{
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient gradient(square.topLeft(), square.bottomLeft());
    gradient.setColorAt(0, colour.lighter(114));
    gradient.setColorAt(1, colour.darker(106));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    const double radius = square.width() * kRadius;
    painter.drawRoundedRect(square, radius, radius);
    QRectF place(0, 0, square.width() * kSymbol, square.height() * kSymbol);
    place.moveCenter(square.center());
    SymbolDrawing::draw(painter, symbol, Qt::white, place);
}

} // namespace orlen::BadgeDrawing

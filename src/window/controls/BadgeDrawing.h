#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

/// Draws badges: a white icon on a rounded square with a slight gradient. Any thread.
namespace orlen::BadgeDrawing {

void draw(QPainter& painter, const QString& symbol, const QColor& colour, const QRectF& square);

} // namespace orlen::BadgeDrawing

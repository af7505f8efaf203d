#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

/// Draws the program's icons. Any thread.
namespace orlen::SymbolDrawing {

/// Draws the symbol into the rectangle, keeping its aspect ratio. An unknown name draws nothing and logs a
/// warning.
void draw(QPainter& painter, const QString& name, const QColor& colour, const QRectF& place);

} // namespace orlen::SymbolDrawing

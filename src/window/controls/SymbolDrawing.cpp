#include "window/controls/SymbolDrawing.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace orlen::SymbolDrawing {

void draw(QPainter& painter, const QString& name, const QColor& colour, const QRectF& place)
{
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("There is no symbol %s", qPrintable(name));
        return;
    }
    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", colour.name().toLatin1());
    QSvgRenderer renderer(drawing);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter, place);
}

} // namespace orlen::SymbolDrawing

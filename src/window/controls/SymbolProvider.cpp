#include "window/controls/SymbolProvider.h"

#include "window/controls/BadgeDrawing.h"
#include "window/controls/SymbolDrawing.h"

#include <QMutexLocker>
#include <QPainter>

namespace orlen {

namespace {

constexpr int kUsualSize = 16;

QString nameIn(const QString& id)
{
    return id.section(u'/', 0, 0);
}

QColor colourIn(const QString& id)
{
    return QColor(u'#' + id.section(u'/', 1, 1));
}

} // namespace

QImage DrawnImageProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QSize wanted(requestedSize.width() > 0 ? requestedSize.width() : kUsualSize,
                       requestedSize.height() > 0 ? requestedSize.height() : kUsualSize);
    if (size != nullptr)
        *size = wanted;
    const QString key = QStringLiteral("%1 %2x%3").arg(id).arg(wanted.width()).arg(wanted.height());
    const QMutexLocker locker(&m_lock);
    QImage& image = m_drawn[key];
    if (image.isNull()) {
        image = QImage(wanted, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        draw(image, id);
    }
    return image;
}

void SymbolProvider::draw(QImage& image, const QString& id) const
{
    QPainter painter(&image);
    SymbolDrawing::draw(painter, nameIn(id), colourIn(id), QRectF(image.rect()));
}

void BadgeProvider::draw(QImage& image, const QString& id) const
{
    QPainter painter(&image);
    BadgeDrawing::draw(painter, nameIn(id), colourIn(id), QRectF(image.rect()));
}

} // namespace orlen

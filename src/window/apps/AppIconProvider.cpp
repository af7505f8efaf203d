#include "window/apps/AppIconProvider.h"

#include "platform/files/FileContent.h"
#include "platform/files/Folder.h"
#include "window/apps/IconFiles.h"
#include "window/controls/BadgeDrawing.h"
#include "window/lists/PathCode.h"
#include "window/preview/PictureReader.h"
#include "window/shell/Screens.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QPainter>

#include <optional>

namespace orlen {

namespace {

constexpr std::size_t kFileLimit = 8UL * 1024 * 1024;
constexpr int kMemoryLimit = 64; ///< megabytes of one decoded icon

QColor standInColour()
{
    return Screens::at(Screens::Apps).colour;
}

/// Renders a system icon in this process. Null when it cannot be read.
QImage rendered(const std::string& path, QSize size)
{
    const std::optional<std::string> content = readSmallFile(path, kFileLimit);
    if (!content)
        return {};
    QByteArray bytes(content->data(), static_cast<qsizetype>(content->size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "svg");
    reader.setAutoDetectImageFormat(false);
    reader.setAllocationLimit(kMemoryLimit);
    if (!reader.size().isValid())
        return {};
    reader.setScaledSize(reader.size().scaled(size, Qt::KeepAspectRatio));
    return reader.read();
}

/// At most `size`, aspect ratio kept. Null when it cannot be read.
QImage decoded(const std::string& path, QSize size)
{
    // Themes and Flatpak are full of links.
    const std::string file = resolved(path);
    return IconFiles::isSystemDrawing(file) ? rendered(file, size) : PictureReader::icon(file, size);
}

QImage found(const std::string& icon, QSize size)
{
    for (const std::string& path : IconFiles::candidates(icon, size.height())) {
        if (QImage image = decoded(path, size); !image.isNull())
            return image;
    }
    return {};
}

} // namespace

QString AppIconProvider::id(const QString& symbol, const std::string& icon)
{
    return symbol + u'/' + PathCode::of(icon);
}

void AppIconProvider::draw(QImage& image, const QString& id) const
{
    const std::string icon = PathCode::path(id.section(u'/', 1, 1));
    const QImage picture = icon.empty() ? QImage() : found(icon, image.size());
    QPainter painter(&image);
    if (picture.isNull()) {
        BadgeDrawing::draw(painter, id.section(u'/', 0, 0), standInColour(), QRectF(image.rect()));
        return;
    }
    QRect place(QPoint(), picture.size());
    place.moveCenter(image.rect().center());
    painter.drawImage(place.topLeft(), picture);
}

} // namespace orlen

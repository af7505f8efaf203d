#include "PictureReader.h"

#include "platform/FileContent.h"
#include "platform/PathText.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>

namespace orlen::PictureReader {

namespace {

constexpr int kLimitMegabytes = 256;
constexpr std::array<std::string_view, 8> kExtensions{"bmp", "gif", "jpeg", "jpg",
                                                      "png", "tif", "tiff", "webp"};
constexpr std::array kFormats{"bmp", "gif", "jpeg", "png", "tiff", "webp"};

/// An open file and the decoder on it, which looks at the content and never at the name.
class OpenPicture {
public:
    explicit OpenPicture(UniqueFd descriptor) : m_descriptor(std::move(descriptor))
    {
        if (!m_file.open(m_descriptor.get(), QIODevice::ReadOnly))
            return;
        m_reader.setDecideFormatFromContent(true);
        m_reader.setAutoTransform(true);
        m_reader.setDevice(&m_file);
    }

    [[nodiscard]] bool isReadable()
    {
        return std::find(kFormats.begin(), kFormats.end(), m_reader.format()) != kFormats.end() &&
               m_reader.canRead();
    }
    [[nodiscard]] bool isTurned() const
    {
        return (m_reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    }
    [[nodiscard]] QImageReader& reader() { return m_reader; }

private:
    UniqueFd m_descriptor;
    QFile m_file;
    QImageReader m_reader;
};

std::unique_ptr<OpenPicture> open(const std::string& path)
{
    static std::once_flag once;
    std::call_once(once, [] { QImageReader::setAllocationLimit(kLimitMegabytes); });
    Result<UniqueFd> descriptor = openFile(path);
    if (!descriptor.ok())
        return nullptr;
    auto picture = std::make_unique<OpenPicture>(std::move(descriptor).value());
    return picture->isReadable() ? std::move(picture) : nullptr;
}

/// The decoder scales while it reads, which is far cheaper than to scale what it has read.
void shrink(QImageReader& reader, const QSize& size, const QSize& bound, Fit fit)
{
    if (fit == Fit::inside) {
        if (size.width() > bound.width() || size.height() > bound.height())
            reader.setScaledSize(size.scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1}));
        return;
    }
    const QSize covering = size.scaled(bound, Qt::KeepAspectRatioByExpanding).expandedTo({1, 1});
    const QSize scaled = covering.width() > size.width() ? size : covering;
    QRect middle(QPoint(), bound.scaled(scaled, Qt::KeepAspectRatio).expandedTo({1, 1}));
    middle.moveCenter(QRect(QPoint(), scaled).center());
    reader.setScaledSize(scaled);
    reader.setScaledClipRect(middle);
}

} // namespace

bool looksReadable(std::string_view path)
{
    const std::string extension = PathText::asciiLower(PathText::extension(path));
    return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

QSize sizeOf(const std::string& path)
{
    const auto picture = open(path);
    if (picture == nullptr)
        return {};
    const QSize size = picture->reader().size();
    return picture->isTurned() ? size.transposed() : size;
}

QImage read(const std::string& path, const QSize& bound, Fit fit)
{
    const auto picture = open(path);
    if (picture == nullptr || bound.isEmpty())
        return {};
    // What is scaled is the picture as it lies in the file; it is turned afterwards.
    const QSize size = picture->reader().size();
    if (size.isValid())
        shrink(picture->reader(), size, picture->isTurned() ? bound.transposed() : bound, fit);
    return picture->reader().read();
}

} // namespace orlen::PictureReader

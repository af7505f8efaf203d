#include "window/preview/Thumbnails.h"

#include "window/lists/PathCode.h"
#include "window/preview/PictureReader.h"
#include "window/preview/ThumbnailResponse.h"

#include <QMutexLocker>
#include <QRunnable>

#include <utility>

namespace orlen {

namespace {

constexpr int kThreads = 2;
constexpr qsizetype kCacheKilobytes = 64'000;
constexpr QSize kUsualThumbnail{96, 96};
constexpr QSize kLargest{4096, 4096};
constexpr int kPartAt = 2; ///< section of its first number
const QString kPart = QStringLiteral("part");
const QString kPage = QStringLiteral("page");
const QString kKept = QStringLiteral("kept");
const QString kInside = QStringLiteral("inside");

QString sourceOf(const std::string& path)
{
    return QStringLiteral("image://%1/%2").arg(QLatin1String(Thumbnails::kName), PathCode::of(path));
}

} // namespace

class Thumbnails::Job : public QRunnable {
public:
    Job(Thumbnails& thumbnails, QString id, const QSize& size,
        std::shared_ptr<ThumbnailResponse::Ticket> ticket)
        : m_thumbnails(thumbnails), m_id(std::move(id)), m_size(size), m_ticket(std::move(ticket))
    {
    }

    void run() override
    {
        if (!m_ticket->isWanted())
            m_ticket->deliver(QImage());
        else
            m_ticket->deliver(m_id.section(u'/', 1, 1) == kPart ? part() : picture());
    }

private:
    [[nodiscard]] QImage part() const
    {
        const auto number = [this](int at) { return m_id.section(u'/', at, at).toInt(); };
        std::stop_source stop = m_ticket->stop();
        const std::stop_callback atEnd(m_thumbnails.m_stop.get_token(), [&] { stop.request_stop(); });
        const auto picture = PictureReader::readPart(
            PathCode::path(m_id.section(u'/', 0, 0)),
            {number(kPartAt), number(kPartAt + 1), number(kPartAt + 2), number(kPartAt + 3)}, m_size,
            stop.get_token());
        return picture ? picture->image : QImage();
    }

    [[nodiscard]] QImage picture() const
    {
        const QString key = QStringLiteral("%1 %2x%3").arg(m_id).arg(m_size.width()).arg(m_size.height());
        QImage image = m_thumbnails.cached(key);
        if (image.isNull()) {
            const std::string path = PathCode::path(m_id.section(u'/', 0, 0));
            image = m_id.section(u'/', 1, 1) == kPage ? pageOf(path) : pictureOf(path);
            if (!image.isNull())
                m_thumbnails.keep(key, image);
        }
        return image;
    }

    [[nodiscard]] QImage pageOf(const std::string& path) const
    {
        auto page = PictureReader::page(path, m_size, m_thumbnails.m_stop.get_token());
        return page ? std::move(page->image) : QImage();
    }

    [[nodiscard]] QImage pictureOf(const std::string& path) const
    {
        using enum PictureReader::Fit;
        const auto fit = m_id.endsWith(kInside) ? inside : cover;
        const std::stop_token stop = m_thumbnails.m_stop.get_token();
        auto picture = m_id.section(u'/', 1, 1) == kKept ? PictureReader::thumbnail(path, m_size, fit, stop)
                                                         : PictureReader::read(path, m_size, fit, stop);
        return picture ? std::move(picture->image) : QImage();
    }

    Thumbnails& m_thumbnails;
    QString m_id;
    QSize m_size;
    std::shared_ptr<ThumbnailResponse::Ticket> m_ticket;
};

Thumbnails::Thumbnails() : m_images(kCacheKilobytes)
{
    m_pool.setMaxThreadCount(kThreads);
}

Thumbnails::~Thumbnails()
{
    m_pool.clear();
    m_stop.request_stop();
}

QString Thumbnails::source(const std::string& path)
{
    if (PictureReader::looksReadable(path))
        return sourceOf(path);
    return PictureReader::looksThumbnailed(path) ? QStringLiteral("%1/%2").arg(sourceOf(path), kKept)
                                                 : QString();
}

QString Thumbnails::sourceOfKept(const std::string& path)
{
    return QStringLiteral("%1/%2/%3").arg(sourceOf(path), kKept, kInside);
}

QString Thumbnails::sourceOfPage(const std::string& path)
{
    return QStringLiteral("%1/%2").arg(sourceOf(path), kPage);
}

QString Thumbnails::sourceOfPart(const std::string& path, const QRect& part)
{
    const QString whole = source(path);
    return whole.isEmpty() ? whole
                           : QStringLiteral("%1/%2/%3/%4/%5/%6")
                                 .arg(whole, kPart)
                                 .arg(part.x())
                                 .arg(part.y())
                                 .arg(part.width())
                                 .arg(part.height());
}

QQuickImageResponse* Thumbnails::requestImageResponse(const QString& id, const QSize& requestedSize)
{
    const QSize wanted = (requestedSize.isEmpty() ? kUsualThumbnail : requestedSize).boundedTo(kLargest);
    auto* response = new ThumbnailResponse; // owned by the engine
    m_pool.start(new Job(*this, id, wanted, response->ticket()));
    return response;
}

QImage Thumbnails::cached(const QString& key)
{
    const QMutexLocker locker(&m_lock);
    const QImage* image = m_images.object(key);
    return image == nullptr ? QImage() : *image;
}

void Thumbnails::keep(const QString& key, const QImage& image)
{
    const QMutexLocker locker(&m_lock);
    m_images.insert(key, new QImage(image), image.sizeInBytes() / 1000 + 1);
}

} // namespace orlen

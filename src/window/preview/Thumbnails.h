#pragma once

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QQuickAsyncImageProvider>
#include <QThreadPool>

#include <stop_token>
#include <string>

namespace orlen {

/// Thumbnails of the user's pictures, decoded off the main thread at the size they are shown:
/// "image://thumbnail/PATH" crops the middle of the picture to the shape of `sourceSize`,
/// "image://thumbnail/PATH/inside" fits the whole picture into it, "image://thumbnail/PATH/part/X/Y/W/H" that
/// part of it, which is not cached, "image://thumbnail/PATH/page" the first page of a document, and
/// "image://thumbnail/PATH/kept" and ".../kept/inside" the thumbnail that a file manager has made. PATH is a
/// `PathCode`. A request whose image item is gone is dropped, and reading a part for it stops. An unreadable
/// picture has no pixels: the item is then `Ready` with an `implicitWidth` of 0, and whatever is below it
/// shows through. The latest 64 MB are cached.
class Thumbnails : public QQuickAsyncImageProvider {
public:
    static constexpr const char* kName = "thumbnail";

    Thumbnails();
    ~Thumbnails() override;

    /// The source for an image item: of a picture, or of what a file manager may have made a thumbnail of;
    /// empty for other names. Any thread; does not touch the disk.
    [[nodiscard]] static QString source(const std::string& path);

    /// The source of the whole thumbnail that a file manager has made.
    [[nodiscard]] static QString sourceOfKept(const std::string& path);

    /// The source of the first page of a document.
    [[nodiscard]] static QString sourceOfPage(const std::string& path);

    /// The source of a part of the picture, in its upright pixels.
    [[nodiscard]] static QString sourceOfPart(const std::string& path, const QRect& part);

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

private:
    class Job;

    [[nodiscard]] QImage cached(const QString& key);
    void keep(const QString& key, const QImage& image);

    QMutex m_lock;
    QCache<QString, QImage> m_images; ///< by id and size; cost in kilobytes
    std::stop_source m_stop;
    QThreadPool m_pool; ///< last, so that no job outlives what it uses
};

} // namespace orlen

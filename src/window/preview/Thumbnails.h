#pragma once

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QQuickAsyncImageProvider>
#include <QThreadPool>

#include <stop_token>
#include <string>

namespace orlen {

/// Small pictures of the user's pictures, decoded off the main thread at the size they are shown:
/// "image://thumbnail/PATH" for the middle of the picture in exactly the shape of `sourceSize`,
/// "image://thumbnail/PATH/inside" for the whole picture within it. PATH is a `PathCode`. A request whose
/// image item has gone is dropped. What cannot be read comes back without pixels: the item is then `Ready`
/// with an `implicitWidth` of 0, and what lies below it shows. The latest 64 MB are kept.
class Thumbnails : public QQuickAsyncImageProvider {
public:
    static constexpr const char* kName = "thumbnail";

    Thumbnails();
    ~Thumbnails() override;

    /// What a list model gives as the source of an image item; empty when the name is not that of a picture.
    /// Any thread; does not touch the disk.
    [[nodiscard]] static QString source(const std::string& path);

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

private:
    class Job;

    [[nodiscard]] QImage cached(const QString& key);
    void keep(const QString& key, const QImage& image);

    QMutex m_lock;
    QCache<QString, QImage> m_images; ///< by identity and size, at the cost of their kilobytes
    std::stop_source m_stop;
    QThreadPool m_pool; ///< last, so that no job outlives what it uses
};

} // namespace orlen

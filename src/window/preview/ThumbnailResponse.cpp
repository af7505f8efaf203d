#include "window/preview/ThumbnailResponse.h"

#include <QMutexLocker>
#include <QQuickTextureFactory>

namespace orlen {

bool ThumbnailResponse::Ticket::isWanted()
{
    const QMutexLocker locker(&m_lock);
    return m_isWanted && m_response != nullptr;
}

void ThumbnailResponse::Ticket::deliver(const QImage& image)
{
    const QMutexLocker locker(&m_lock);
    if (m_response == nullptr)
        return;
    m_response->m_image = image;
    // Queued, so that no engine code runs under the lock or before the engine has connected.
    QMetaObject::invokeMethod(m_response, &QQuickImageResponse::finished, Qt::QueuedConnection);
}

void ThumbnailResponse::Ticket::forget()
{
    {
        const QMutexLocker locker(&m_lock);
        m_response = nullptr;
    }
    m_stop.request_stop();
}

void ThumbnailResponse::Ticket::refuse()
{
    {
        const QMutexLocker locker(&m_lock);
        m_isWanted = false;
    }
    m_stop.request_stop();
}

QQuickTextureFactory* ThumbnailResponse::textureFactory() const
{
    return QQuickTextureFactory::textureFactoryForImage(m_image);
}

} // namespace orlen

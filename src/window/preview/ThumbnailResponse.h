#pragma once

#include <QImage>
#include <QMutex>
#include <QQuickImageResponse>

#include <memory>
#include <stop_token>

namespace orlen {

/// The answer to one request of an image item. The engine may destroy it at any time, so a decoder holds only
/// a ticket.
class ThumbnailResponse : public QQuickImageResponse {
    Q_OBJECT

public:
    /// A decoder's handle to the response. Any thread.
    class Ticket {
    public:
        explicit Ticket(ThumbnailResponse& response) : m_response(&response) {}

        /// False once nobody is waiting for the picture.
        [[nodiscard]] bool isWanted();
        /// Asked to stop once nobody is waiting for the picture.
        [[nodiscard]] std::stop_source stop() const { return m_stop; }
        /// Finishes the response; ignored when it is gone.
        void deliver(const QImage& image);

    private:
        friend class ThumbnailResponse;
        void forget();
        void refuse();

        QMutex m_lock;
        ThumbnailResponse* m_response;
        bool m_isWanted = true;
        std::stop_source m_stop;
    };

    ThumbnailResponse() : m_ticket(std::make_shared<Ticket>(*this)) {}
    ~ThumbnailResponse() override { m_ticket->forget(); }

    [[nodiscard]] std::shared_ptr<Ticket> ticket() const { return m_ticket; }
    [[nodiscard]] QQuickTextureFactory* textureFactory() const override;
    void cancel() override { m_ticket->refuse(); }

private:
    std::shared_ptr<Ticket> m_ticket;
    QImage m_image;
};

} // namespace orlen

#pragma once

#include <QHash>
#include <QImage>
#include <QMutex>
#include <QQuickImageProvider>

namespace orlen {

/// Draws small images and caches them. The image item's source size sets the size in pixels. Any thread.
class DrawnImageProvider : public QQuickImageProvider {
public:
    DrawnImageProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

protected:
    /// `image` starts out transparent.
    virtual void draw(QImage& image, const QString& id) const = 0;

private:
    QMutex m_lock;
    QHash<QString, QImage> m_drawn; ///< by id and size; at most a few hundred small images
};

/// Icons: "image://symbol/NAME/RRGGBB".
class SymbolProvider : public DrawnImageProvider {
public:
    static constexpr const char* kName = "symbol";

protected:
    void draw(QImage& image, const QString& id) const override;
};

/// Badges, white icons on a rounded square with a slight gradient: "image://badge/NAME/RRGGBB".
class BadgeProvider : public DrawnImageProvider {
public:
    static constexpr const char* kName = "badge";

protected:
    void draw(QImage& image, const QString& id) const override;
};

} // namespace orlen

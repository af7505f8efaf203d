#pragma once

#include "window/preview/LinkedZoom.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <string>

namespace orlen {

/// Where a picture, or one of several that are linked, lies in its pane, and which part of it is needed in
/// detail. Only what can be seen is read at full size, with some around it, once the view has stood still for
/// a moment. Main thread.
class PicturePane : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::LinkedZoom* zoom READ zoom WRITE setZoom NOTIFY zoomChanged REQUIRED)
    /// A `PathCode`.
    Q_PROPERTY(QString photo READ photo WRITE setPhoto NOTIFY photoChanged)
    /// Pixels of the upright picture; empty while unknown.
    Q_PROPERTY(QSizeF pixels READ pixels WRITE setPixels NOTIFY changed)
    /// The pane's.
    Q_PROPERTY(QSizeF size READ size WRITE setSize NOTIFY changed)
    /// Device pixels for each of the pane's.
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY changed)
    /// The picture's place in the pane.
    Q_PROPERTY(QRectF place READ place NOTIFY changed)
    /// The image source of the part in detail; empty when the fitted picture is as good.
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    /// That part's place in the pane.
    Q_PROPERTY(QRectF detailPlace READ detailPlace NOTIFY changed)
    /// Device pixels to request for the part.
    Q_PROPERTY(QSizeF detailSize READ detailSize NOTIFY changed)
    /// The zoom at which a pixel of the picture is one of the device.
    Q_PROPERTY(double actualZoom READ actualZoom NOTIFY changed)
    /// Device pixels for each of the picture's, as text: "50 %". Empty while unknown.
    Q_PROPERTY(QString percent READ percent NOTIFY changed)

public:
    PicturePane();

    [[nodiscard]] LinkedZoom* zoom() const { return m_zoom; }
    void setZoom(LinkedZoom* zoom);
    [[nodiscard]] QString photo() const;
    void setPhoto(const QString& code);
    [[nodiscard]] QSizeF pixels() const { return m_pixels; }
    void setPixels(const QSizeF& pixels);
    [[nodiscard]] QSizeF size() const { return m_size; }
    void setSize(const QSizeF& size);
    [[nodiscard]] double ratio() const { return m_ratio; }
    void setRatio(double ratio);

    [[nodiscard]] QRectF place() const;
    [[nodiscard]] QString detail() const;
    [[nodiscard]] QRectF detailPlace() const;
    [[nodiscard]] QSizeF detailSize() const { return m_detailSize; }
    [[nodiscard]] double actualZoom() const;
    [[nodiscard]] QString percent() const;

    /// What of the picture is at a place of the pane: 0 to 1 both ways.
    Q_INVOKABLE [[nodiscard]] QPointF partAt(const QPointF& place) const;

Q_SIGNALS:
    void zoomChanged();
    void photoChanged();
    void changed();

private:
    [[nodiscard]] bool isKnown() const { return !m_pixels.isEmpty() && !m_size.isEmpty(); }
    /// The pane's pixels for each of the picture's.
    [[nodiscard]] double fittedScale() const;
    [[nodiscard]] double scale() const;
    void follow();
    void chooseDetail();

    LinkedZoom* m_zoom = nullptr;
    std::string m_photo;
    QSizeF m_pixels;
    QSizeF m_size;
    double m_ratio = 1;
    QRect m_part; ///< in pixels of the picture; empty: none
    QSizeF m_detailSize;
    QTimer m_still;
};

} // namespace orlen

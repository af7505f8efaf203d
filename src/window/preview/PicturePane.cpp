#include "window/preview/PicturePane.h"

#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/preview/Thumbnails.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kStill{120};
/// What is read around the visible part, as a share of it on each side.
constexpr double kAround = 0.25;

/// Where one side of the picture begins: as near to the wanted centre as its edges allow.
double start(double pane, double picture, double centre)
{
    return picture <= pane ? (pane - picture) / 2
                           : std::clamp(pane / 2 - centre * picture, pane - picture, 0.0);
}

} // namespace

PicturePane::PicturePane()
{
    m_still.setSingleShot(true);
    m_still.setInterval(kStill);
    connect(&m_still, &QTimer::timeout, this, &PicturePane::chooseDetail);
}

void PicturePane::setZoom(LinkedZoom* zoom)
{
    if (m_zoom == zoom)
        return;
    if (m_zoom != nullptr)
        m_zoom->disconnect(this);
    m_zoom = zoom;
    if (m_zoom != nullptr)
        connect(m_zoom, &LinkedZoom::changed, this, &PicturePane::follow);
    Q_EMIT zoomChanged();
    follow();
}

QString PicturePane::photo() const
{
    return PathCode::of(m_photo);
}

void PicturePane::setPhoto(const QString& code)
{
    if (photo() == code)
        return;
    m_photo = PathCode::path(code);
    m_part = {};
    Q_EMIT photoChanged();
    follow();
}

void PicturePane::setPixels(const QSizeF& pixels)
{
    if (std::exchange(m_pixels, pixels) != pixels)
        follow();
}

void PicturePane::setSize(const QSizeF& size)
{
    if (std::exchange(m_size, size) != size)
        follow();
}

void PicturePane::setRatio(double ratio)
{
    if (std::exchange(m_ratio, ratio) != ratio)
        follow();
}

double PicturePane::fittedScale() const
{
    return std::min(m_size.width() / m_pixels.width(), m_size.height() / m_pixels.height());
}

double PicturePane::scale() const
{
    return fittedScale() * (m_zoom == nullptr ? 1 : m_zoom->zoom());
}

QRectF PicturePane::place() const
{
    if (!isKnown())
        return {};
    const QSizeF whole = m_pixels * scale();
    const QPointF centre = m_zoom == nullptr ? QPointF(0.5, 0.5) : m_zoom->centre();
    return {{start(m_size.width(), whole.width(), centre.x()),
             start(m_size.height(), whole.height(), centre.y())},
            whole};
}

double PicturePane::actualZoom() const
{
    return isKnown() ? 1 / (fittedScale() * m_ratio) : 1;
}

QString PicturePane::percent() const
{
    return isKnown() ? DisplayText::percent(scale() * m_ratio) : QString();
}

QPointF PicturePane::partAt(const QPointF& point) const
{
    const QRectF whole = place();
    if (whole.isEmpty())
        return {0.5, 0.5};
    return {std::clamp((point.x() - whole.x()) / whole.width(), 0.0, 1.0),
            std::clamp((point.y() - whole.y()) / whole.height(), 0.0, 1.0)};
}

void PicturePane::follow()
{
    m_still.start();
    Q_EMIT changed();
}

void PicturePane::chooseDetail()
{
    m_part = {};
    if (isKnown() && m_zoom != nullptr && !m_zoom->isFitted()) {
        const QRectF whole = place();
        const double scaled = scale();
        const QRectF seen = QRectF({}, m_size).intersected(whole).translated(-whole.topLeft());
        const QPointF around(seen.width() * kAround, seen.height() * kAround);
        const QRectF read(seen.topLeft() - around, seen.bottomRight() + around);
        m_part = QRectF(read.topLeft() / scaled, read.size() / scaled)
                     .toAlignedRect()
                     .intersected(QRect(0, 0, static_cast<int>(m_pixels.width()),
                                        static_cast<int>(m_pixels.height())));
        const double needed = std::min(1.0, scaled * m_ratio);
        m_detailSize = {std::max(1.0, std::ceil(m_part.width() * needed)),
                        std::max(1.0, std::ceil(m_part.height() * needed))};
    }
    Q_EMIT changed();
}

QString PicturePane::detail() const
{
    return m_part.isEmpty() ? QString() : Thumbnails::sourceOfPart(m_photo, m_part);
}

QRectF PicturePane::detailPlace() const
{
    if (m_part.isEmpty())
        return {};
    return {place().topLeft() + QPointF(m_part.topLeft()) * scale(), QSizeF(m_part.size()) * scale()};
}

} // namespace orlen

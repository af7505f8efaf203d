#include "window/preview/LinkedZoom.h"

#include <algorithm>
#include <utility>

namespace orlen {

void LinkedZoom::setMost(double most)
{
    most = std::max(1.0, most);
    if (std::exchange(m_most, most) == most)
        return;
    Q_EMIT mostChanged();
    set(std::min(m_zoom, m_most), m_centre);
}

void LinkedZoom::zoomTo(double zoom, const QPointF& place)
{
    const double wanted = std::clamp(zoom, 1.0, m_most);
    set(wanted, place + (m_centre - place) * (m_zoom / wanted));
}

void LinkedZoom::zoomBy(double factor, const QPointF& place)
{
    zoomTo(m_zoom * factor, place);
}

void LinkedZoom::panBy(double across, double down)
{
    set(m_zoom, m_centre + QPointF(across, down));
}

void LinkedZoom::fit()
{
    set(1, {0.5, 0.5});
}

void LinkedZoom::set(double zoom, const QPointF& centre)
{
    // No further than where the edge of the picture is at that of the pane.
    const double half = 0.5 / zoom;
    const QPointF allowed(std::clamp(centre.x(), half, 1 - half), std::clamp(centre.y(), half, 1 - half));
    if (zoom == m_zoom && allowed == m_centre)
        return;
    m_zoom = zoom;
    m_centre = allowed;
    Q_EMIT changed();
}

} // namespace orlen

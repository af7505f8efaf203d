#include "window/diskmap/MapGestures.h"

namespace orlen {

namespace {

/// Two notches of a common wheel, 120 each, zoom by one folder.
constexpr double kMagnificationPerEighth = 0.2 / 120;

} // namespace

void MapGestures::click(QPointF point)
{
    m_map.click({point.x(), point.y()}, m_view);
}

void MapGestures::movePointer(QPointF point)
{
    m_map.movePointer({point.x(), point.y()}, m_view);
}

void MapGestures::removePointer()
{
    m_map.removePointer();
}

void MapGestures::pinch(double scale)
{
    // Each pinch starts at 1 again.
    if (scale != 1)
        m_map.magnify(scale - m_pinchScale);
    m_pinchScale = scale;
}

void MapGestures::turnWheel(double eighths)
{
    m_map.magnify(eighths * kMagnificationPerEighth);
}

} // namespace orlen

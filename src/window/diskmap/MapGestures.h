#pragma once

#include "app/DiskMapModel.h"

#include <QObject>
#include <QPointF>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// What a pointer or a touch does on the disk map. Main thread.
class MapGestures : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It belongs to a map")

public:
    /// Both outlive this; `view` is the size in which points lie.
    MapGestures(DiskMapModel& map, const Treemap::Size& view) : m_map(map), m_view(view) {}

    Q_INVOKABLE void click(QPointF point);
    Q_INVOKABLE void movePointer(QPointF point);
    Q_INVOKABLE void removePointer();
    /// `scale` is that of the whole pinch so far, starting at 1.
    Q_INVOKABLE void pinch(double scale);
    /// Wheel movement in eighths of a degree; acts like a pinch.
    Q_INVOKABLE void turnWheel(double eighths);

private:
    DiskMapModel& m_map;
    const Treemap::Size& m_view;
    double m_pinchScale = 1; ///< last scale of the pinch in progress
};

} // namespace orlen

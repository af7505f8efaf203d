#pragma once

#include <QObject>
#include <QPointF>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// What is shown of a picture; of several of one scene, all the same part at the same size whatever their
/// pixels. Main thread.
class LinkedZoom : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// How much larger than fitted into their panes; 1 is fitted.
    Q_PROPERTY(double zoom READ zoom NOTIFY changed)
    /// The largest zoom, at least 1.
    Q_PROPERTY(double most READ most WRITE setMost NOTIFY mostChanged)
    Q_PROPERTY(bool fitted READ isFitted NOTIFY changed)

public:
    [[nodiscard]] double zoom() const { return m_zoom; }
    [[nodiscard]] double most() const { return m_most; }
    void setMost(double most);
    [[nodiscard]] bool isFitted() const { return m_zoom <= 1; }
    /// What is in the middle: 0 to 1 across and down the picture.
    [[nodiscard]] QPointF centre() const { return m_centre; }

    /// Zooms while what is at a place of the picture, 0 to 1 both ways, stays there.
    Q_INVOKABLE void zoomTo(double zoom, const QPointF& place);
    Q_INVOKABLE void zoomBy(double factor, const QPointF& place);
    /// The same about the middle.
    Q_INVOKABLE void zoomMiddleBy(double factor) { zoomBy(factor, m_centre); }
    Q_INVOKABLE void zoomMiddleTo(double zoom) { zoomTo(zoom, m_centre); }
    /// Moves by shares of the picture.
    Q_INVOKABLE void panBy(double across, double down);
    Q_INVOKABLE void fit();

Q_SIGNALS:
    void changed();
    void mostChanged();

private:
    void set(double zoom, const QPointF& centre);

    double m_zoom = 1;
    double m_most = 1;
    QPointF m_centre{0.5, 0.5};
};

} // namespace orlen

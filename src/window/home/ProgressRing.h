#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// A ring that fills clockwise from the top.
class ProgressRing : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// From 0 to 1; drawn clamped, as springs overshoot.
    Q_PROPERTY(double value MEMBER m_value NOTIFY changed)
    Q_PROPERTY(double thickness MEMBER m_thickness NOTIFY changed)
    Q_PROPERTY(QColor tone MEMBER m_tone NOTIFY changed)
    Q_PROPERTY(QColor track MEMBER m_track NOTIFY changed)

public:
    explicit ProgressRing(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    double m_value = 0;
    double m_thickness = 8;
    QColor m_tone;
    QColor m_track;
};

} // namespace orlen

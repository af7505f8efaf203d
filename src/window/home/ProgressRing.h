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
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(double thickness MEMBER m_thickness WRITE setThickness NOTIFY lookChanged)
    Q_PROPERTY(QColor tone MEMBER m_tone WRITE setTone NOTIFY lookChanged)
    Q_PROPERTY(QColor track MEMBER m_track WRITE setTrack NOTIFY lookChanged)

public:
    explicit ProgressRing(QQuickItem* parent = nullptr);

    [[nodiscard]] double value() const { return m_value; }
    void setValue(double value);
    void setThickness(double thickness);
    void setTone(const QColor& tone);
    void setTrack(const QColor& track);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void valueChanged();
    void lookChanged();

private:
    double m_value = 0;
    double m_thickness = 8;
    QColor m_tone;
    QColor m_track;
};

} // namespace orlen

#pragma once

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The motion of a damped spring from 0 to 1, as an easing curve for QML animations.
///
/// The exact step response of a second-order system: with w = 2 pi / response and damping fraction z < 1,
/// x(t) = 1 - e^(-z w t) (cos(v t) + (z w / v) sin(v t)), v = w sqrt(1 - z^2).
class SpringCurve : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Period of the undamped spring, in seconds.
    Q_PROPERTY(double response MEMBER m_response NOTIFY changed)
    /// Damping fraction, greater than 0, at most 1 (no overshoot).
    Q_PROPERTY(double damping MEMBER m_damping NOTIFY changed)
    /// Control points for `easing.bezierCurve`.
    Q_PROPERTY(QVariantList curve READ curve NOTIFY changed)
    /// Milliseconds until the spring rests.
    Q_PROPERTY(int duration READ duration NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] QVariantList curve() const;
    [[nodiscard]] int duration() const;

Q_SIGNALS:
    void changed();

private:
    double m_response = 0.6;
    double m_damping = 0.85;
};

} // namespace orlen

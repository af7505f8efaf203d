#pragma once

#include "window/controls/AccentShades.h"

#include <QColor>
#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// How the desktop wants programs to look: dark or light, its accent colour, contrast and motion. Follows
/// changes. Main thread.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ isHighContrast NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ isReducedMotion NOTIFY changed)
    /// Whether the desktop names an accent colour; the shades below are those of it.
    Q_PROPERTY(bool hasAccent READ hasAccent NOTIFY changed)
    Q_PROPERTY(QColor accentText READ accentText NOTIFY changed)
    Q_PROPERTY(QColor accentFill READ accentFill NOTIFY changed)
    Q_PROPERTY(QColor accentHover READ accentHover NOTIFY changed)
    Q_PROPERTY(QColor accentPressed READ accentPressed NOTIFY changed)
    Q_PROPERTY(QColor accentSoft READ accentSoft NOTIFY changed)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)
    /// The desktop's text size relative to the usual 10 points, at least 1.
    Q_PROPERTY(double textScale READ textScale CONSTANT)

public:
    enum class Scheme { system, light, dark };

    explicit Appearance(QObject* parent = nullptr);

    [[nodiscard]] bool isDark() const;
    [[nodiscard]] bool isHighContrast() const { return m_isHighContrast; }
    [[nodiscard]] bool isReducedMotion() const;
    [[nodiscard]] bool hasAccent() const { return m_accent.isValid(); }
    [[nodiscard]] QColor accentText() const { return m_shades.text; }
    [[nodiscard]] QColor accentFill() const { return m_shades.fill; }
    [[nodiscard]] QColor accentHover() const { return m_shades.hover; }
    [[nodiscard]] QColor accentPressed() const { return m_shades.pressed; }
    [[nodiscard]] QColor accentSoft() const { return m_shades.soft; }
    [[nodiscard]] static QString fontFamily();
    [[nodiscard]] double textScale() const;

    /// For screenshots and tests: overrides the desktop for all instances created afterwards.
    static void setScheme(Scheme scheme);
    static void setReducedMotion(bool isReduced);
    static void setTextScale(double scale);

Q_SIGNALS:
    void changed();

private:
    Q_SLOT void applySetting(const QString& group, const QString& key, const QDBusVariant& value);
    void ask(const QString& group, const QString& key);

    int m_colourScheme = 0; ///< the portal's value: 0 no preference, 1 dark, 2 light
    bool m_isHighContrast = false;
    QColor m_accent; ///< invalid if the desktop names none
    AccentShades m_shades;
    // Each desktop says it in its own way, and more than one may answer.
    bool m_isMotionReduced = false;
    bool m_areGnomeAnimationsOff = false;
    bool m_areKdeAnimationsOff = false;
};

} // namespace orlen

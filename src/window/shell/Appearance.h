#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// How the desktop wants programs to look: dark or light, with or without motion. Follows changes. Main
/// thread.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ isHighContrast NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ isReducedMotion NOTIFY changed)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)
    /// The desktop's text size relative to the usual 10 points, at least 1.
    Q_PROPERTY(double textScale READ textScale CONSTANT)

public:
    enum class Scheme { system, light, dark };

    explicit Appearance(QObject* parent = nullptr);

    [[nodiscard]] bool isDark() const;
    [[nodiscard]] bool isHighContrast() const { return m_isHighContrast; }
    [[nodiscard]] bool isReducedMotion() const;
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
    bool m_areAnimationsOff = false;
};

} // namespace orlen

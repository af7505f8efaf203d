#pragma once

#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace orlen {

/// What proves to the desktop that a window may come to the front: given by the launcher to the program it
/// starts, and handed on when the window belongs to another process.
struct LaunchToken {
    QString wayland; ///< of `XDG_ACTIVATION_TOKEN`; empty when there is none
    QString x11;     ///< of `DESKTOP_STARTUP_ID`; empty when there is none

    /// Read it before the application object is made, which takes the variables away.
    [[nodiscard]] static LaunchToken fromEnvironment();

    /// As "platform data" of the desktop's application interface.
    [[nodiscard]] static LaunchToken fromPlatformData(const QVariantMap& data);
    [[nodiscard]] QVariantMap platformData() const;

    /// Has the next window that is brought to the front use it.
    void use() const;
};

} // namespace orlen

Q_DECLARE_METATYPE(orlen::LaunchToken)

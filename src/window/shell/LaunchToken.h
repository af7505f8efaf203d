#pragma once

#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace orlen {

/// Proves to the desktop that a window may come to the front. The launcher gives it to the program it starts,
/// which passes it on if the window belongs to another process.
struct LaunchToken {
    QString wayland; ///< from `XDG_ACTIVATION_TOKEN`; empty when there is none
    QString x11;     ///< from `DESKTOP_STARTUP_ID`; empty when there is none

    /// Call before creating the application object, which unsets the variables.
    [[nodiscard]] static LaunchToken fromEnvironment();

    /// As the "platform data" of the desktop's application interface.
    [[nodiscard]] static LaunchToken fromPlatformData(const QVariantMap& data);
    [[nodiscard]] QVariantMap platformData() const;

    /// Makes the next window brought to the front use it.
    void use() const;
};

} // namespace orlen

Q_DECLARE_METATYPE(orlen::LaunchToken)

#pragma once

#include "window/shell/LaunchToken.h"

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace orlen {

/// The bus face of a program that the desktop starts by name: "org.freedesktop.Application".
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// A function and no signal: each signal of such an object goes out on the bus.
    using Activated = std::function<void(const LaunchToken&)>;

    ApplicationInterface(Activated activated, QObject* parent);

    Q_SLOT void Activate(const QVariantMap& platformData);
    /// Orlen opens no documents: the window comes to the front, and that is all.
    Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The desktop entry names no actions; what an older or newer entry names opens the window.
    Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameter,
                               const QVariantMap& platformData);

private:
    const Activated m_activated;
};

} // namespace orlen

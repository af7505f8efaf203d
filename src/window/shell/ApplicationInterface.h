#pragma once

#include "window/shell/LaunchToken.h"

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace orlen {

/// The D-Bus interface of a program that the desktop starts by name: "org.freedesktop.Application".
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// A function, not a signal: signals of an adaptor are sent on the bus.
    using Activated = std::function<void(const LaunchToken&)>;

    ApplicationInterface(Activated activated, QObject* parent);

    Q_SLOT void Activate(const QVariantMap& platformData);
    /// Orlen opens no documents, so this only brings the window to the front.
    Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The desktop entry has no actions; any that another version has just opens the window.
    Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameter,
                               const QVariantMap& platformData);

private:
    const Activated m_activated;
};

} // namespace orlen

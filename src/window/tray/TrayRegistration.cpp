#include "window/tray/TrayRegistration.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace orlen {

namespace {

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");

/// A call must not start a tray the user does not have.
QDBusMessage callToWatcher(const QString& interface, const QString& method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(kWatcher, kWatcherPath, interface, method);
    call.setAutoStartService(false);
    return call;
}

} // namespace

TrayRegistration::TrayRegistration(QDBusConnection bus, QObject* parent)
    : QObject(parent), m_bus(std::move(bus)),
      m_watcher(kWatcher, m_bus, QDBusServiceWatcher::WatchForRegistration)
{
}

void TrayRegistration::start()
{
    if (!m_bus.isConnected())
        return;
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayRegistration::look);
    m_bus.connect(kWatcher, kWatcherPath, kWatcher, QStringLiteral("StatusNotifierHostRegistered"), this,
                  SLOT(look()));
    look();
}

void TrayRegistration::look()
{
    QDBusMessage call =
        callToWatcher(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << kWatcher << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> hasHost = *finished;
        if (hasHost.isValid() && hasHost.value().variant().toBool())
            registerItem();
    });
}

void TrayRegistration::registerItem()
{
    // The connection's own name: a sandbox grants no others, and every watcher accepts it.
    QDBusMessage call = callToWatcher(kWatcher, QStringLiteral("RegisterStatusNotifierItem"));
    call << m_bus.baseService();
    m_bus.asyncCall(call);
}

} // namespace orlen

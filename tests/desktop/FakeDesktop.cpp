#include "FakeDesktop.h"

#include "PrivateBus.h"
#include "app/EventLoop.h"

#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>

namespace orlen {

namespace {

constexpr auto kAll = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                      QDBusConnection::ExportAllProperties;

/// Each has a connection of its own, so that the service is gone with the object.
QDBusConnection offered(QObject* object, const QString& service, const QString& path)
{
    QDBusConnection bus = PrivateBus::connection(service);
    bus.registerObject(path, object, kAll);
    bus.registerService(service);
    return bus;
}

const QString kTray = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kNotices = QStringLiteral("org.freedesktop.Notifications");

} // namespace

QDBusMessage answered(const QDBusConnection& bus, const QDBusMessage& call)
{
    const QDBusPendingCallWatcher watcher(bus.asyncCall(call));
    (void)waitUntil([&] { return watcher.isFinished(); });
    return watcher.reply();
}

FakeTray::FakeTray(bool hasHost)
    : m_bus(offered(this, kTray, QStringLiteral("/StatusNotifierWatcher"))), m_hasHost(hasHost)
{
}

FakeTray::~FakeTray()
{
    QDBusConnection::disconnectFromBus(kTray);
}

void FakeTray::addHost()
{
    m_hasHost = true;
    Q_EMIT StatusNotifierHostRegistered();
}

QDBusArgument& operator<<(QDBusArgument& argument, const PortalColour& colour)
{
    argument.beginStructure();
    argument << colour.red << colour.green << colour.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColour& colour)
{
    argument.beginStructure();
    argument >> colour.red >> colour.green >> colour.blue;
    argument.endStructure();
    return argument;
}

PortalColour::operator QVariant() const
{
    static const QMetaType type = qDBusRegisterMetaType<PortalColour>();
    (void)type;
    return QVariant::fromValue(*this);
}

FakePortal::FakePortal(const Settings& settings)
    : m_bus(offered(this, kPortal, QStringLiteral("/org/freedesktop/portal/desktop"))), m_settings(settings)
{
}

FakePortal::~FakePortal()
{
    QDBusConnection::disconnectFromBus(kPortal);
}

void FakePortal::change(const QString& group, const QString& key, const QVariant& value)
{
    Q_EMIT SettingChanged(group, key, QDBusVariant(value));
}

QDBusVariant FakePortal::Read(const QString& group, const QString& key)
{
    const auto setting = m_settings.constFind(group + ' ' + key);
    if (setting == m_settings.constEnd()) {
        sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"));
        return {};
    }
    // As the real one, which wraps the value once more.
    return QDBusVariant(QVariant::fromValue(QDBusVariant(*setting)));
}

FakeNotices::FakeNotices() : m_bus(offered(this, kNotices, QStringLiteral("/org/freedesktop/Notifications")))
{
}

FakeNotices::~FakeNotices()
{
    QDBusConnection::disconnectFromBus(kNotices);
}

void FakeNotices::click(uint id)
{
    Q_EMIT ActivationToken(id, QStringLiteral("token"));
    Q_EMIT ActionInvoked(id, QStringLiteral("default"));
}

uint FakeNotices::Notify(const QString& /*program*/, uint replaced, const QString& /*icon*/,
                         const QString& title, const QString& text, const QStringList& actions,
                         const QVariantMap& /*hints*/, int /*milliseconds*/)
{
    m_shown.append({replaced, title, text, actions});
    return 7;
}

} // namespace orlen

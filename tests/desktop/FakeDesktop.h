#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace orlen {

/// Calls over the bus and waits for the answer with the event loop running, so that both sides may live here.
[[nodiscard]] QDBusMessage answered(const QDBusConnection& bus, const QDBusMessage& call);

/// The signals that came over the bus.
class SignalLog : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] QStringList names() const { return m_names; }

public Q_SLOTS:
    void add(const QDBusMessage& signal) { m_names << signal.member(); }

private:
    QStringList m_names;
};

/// The desktop's tray, as items see it.
class FakeTray : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    explicit FakeTray(bool hasHost);
    ~FakeTray() override;

    [[nodiscard]] bool hasHost() const { return m_hasHost; }
    void addHost();
    [[nodiscard]] QStringList items() const { return m_items; }
    [[nodiscard]] QDBusConnection bus() const { return m_bus; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& item) { m_items << item; }

Q_SIGNALS:
    void StatusNotifierHostRegistered();

private:
    QDBusConnection m_bus;
    bool m_hasHost;
    QStringList m_items;
};

/// A colour as the portal tells it: red, green and blue from 0 to 1.
struct PortalColour {
    double red = 0;
    double green = 0;
    double blue = 0;

    operator QVariant() const; // NOLINT(google-explicit-constructor): as the settings' values
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalColour& colour);
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColour& colour);

/// The desktop's settings, as sandboxed and other programs read them. What is not set is an error.
class FakePortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    /// By "group key".
    using Settings = QMap<QString, QVariant>;

    explicit FakePortal(const Settings& settings);
    ~FakePortal() override;

    void change(const QString& group, const QString& key, const QVariant& value);

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key);

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection m_bus;
    Settings m_settings;
};

/// The desktop's notification service.
class FakeNotices : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint replaced = 0;
        QString title;
        QString text;
        QStringList actions;
    };

    FakeNotices();
    ~FakeNotices() override;

    [[nodiscard]] QList<Shown> shown() const { return m_shown; }
    /// The user clicks the notice with this number.
    void click(uint id);

public Q_SLOTS:
    uint Notify(const QString& program, uint replaced, const QString& icon, const QString& title,
                const QString& text, const QStringList& actions, const QVariantMap& hints, int milliseconds);

Q_SIGNALS:
    void ActivationToken(uint id, const QString& token);
    void ActionInvoked(uint id, const QString& action);

private:
    QDBusConnection m_bus;
    QList<Shown> m_shown;
};

} // namespace orlen

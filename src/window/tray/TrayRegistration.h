#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace orlen {

/// Registers this process's tray item with the desktop's tray, now and whenever a tray starts. Calls are
/// asynchronous; without a tray nothing is sent. Main thread.
class TrayRegistration : public QObject {
    Q_OBJECT

public:
    explicit TrayRegistration(QDBusConnection bus, QObject* parent = nullptr);

    /// Call once the item's objects are on the bus.
    void start();

private:
    Q_SLOT void look();

    void registerItem();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
};

} // namespace orlen

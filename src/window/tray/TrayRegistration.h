#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace orlen {

/// Tells the desktop's tray of this process's item, now and whenever a tray comes up. All calls are
/// asynchronous; a desktop without a tray is never bothered. Main thread.
class TrayRegistration : public QObject {
    Q_OBJECT

public:
    explicit TrayRegistration(QDBusConnection bus, QObject* parent = nullptr);

    /// When the item's objects are on the bus.
    void start();

private:
    Q_SLOT void look();

    void registerItem();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
};

} // namespace orlen

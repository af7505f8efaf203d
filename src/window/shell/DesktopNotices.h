#pragma once

#include "window/shell/LaunchToken.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;

namespace orlen {

/// Shows one notice at a time through the desktop's notification service; a new one replaces the last. Calls
/// are asynchronous and do nothing without such a service. Main thread.
class DesktopNotices : public QObject {
    Q_OBJECT

public:
    struct Notice {
        QString title;
        QString text; ///< plain
    };

    /// `openLabel` describes what a click does.
    DesktopNotices(QDBusConnection bus, const QString& openLabel, QObject* parent = nullptr);

    void show(const Notice& notice);

Q_SIGNALS:
    /// The notice was clicked.
    void opened(const orlen::LaunchToken& token);

private:
    Q_SLOT void keepToken(uint id, const QString& token);
    Q_SLOT void open(uint id, const QString& action);

    void keepNumber(QDBusPendingCallWatcher* finished);

    QDBusConnection m_bus;
    const QString m_openLabel;
    uint m_id = 0; ///< of the last notice; 0: none
    LaunchToken m_token;
};

} // namespace orlen

#pragma once

#include "window/shell/DesktopNotices.h"
#include "window/shell/EndNotices.h"
#include "window/tray/Tray.h"

#include <QDBusConnection>
#include <QObject>

class QQmlEngine;
class QQuickWindow;

namespace orlen {

/// The program's presence on the desktop besides its window: the tray item and notices. Both are optional:
/// they do nothing on a desktop without them, and closing the window always ends the program. Main thread.
class DesktopPresence : public QObject {
    Q_OBJECT

public:
    /// All arguments outlive this.
    DesktopPresence(const QDBusConnection& bus, AppModel& app, QQmlEngine& engine, QQuickWindow& window);

    /// Brings the window to the front.
    static void present(QQuickWindow& window, const LaunchToken& token = {});

private:
    DesktopNotices m_notices;
    EndNotices m_endNotices;
    Tray m_tray;
};

} // namespace orlen

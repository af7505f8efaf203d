#pragma once

#include "window/shell/DesktopNotices.h"
#include "window/shell/EndNotices.h"
#include "window/tray/Tray.h"

#include <QDBusConnection>
#include <QObject>

class QQmlEngine;
class QQuickWindow;

namespace orlen {

/// What the desktop shows of the program beside its window: the tray item and notices. All of it is optional:
/// nothing happens where the desktop has no place for it, and closing the window ends the program always.
/// Main thread.
class DesktopPresence : public QObject {
    Q_OBJECT

public:
    /// All outlive this.
    DesktopPresence(const QDBusConnection& bus, AppModel& app, QQmlEngine& engine, QQuickWindow& window);

    /// Brings the window to the front.
    static void present(QQuickWindow& window, const LaunchToken& token = {});

private:
    DesktopNotices m_notices;
    EndNotices m_endNotices;
    Tray m_tray;
};

} // namespace orlen

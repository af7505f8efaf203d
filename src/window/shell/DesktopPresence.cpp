#include "window/shell/DesktopPresence.h"

#include <QGuiApplication>
#include <QQuickWindow>

namespace orlen {

DesktopPresence::DesktopPresence(const QDBusConnection& bus, AppModel& app, QQmlEngine& engine,
                                 QQuickWindow& window)
    : m_notices(bus, TrayModel::openLabel()),
      m_endNotices(app, m_notices, [&window] { return window.isExposed() && window.isActive(); }),
      m_tray(bus, app, engine)
{
    connect(&m_notices, &DesktopNotices::opened, &window,
            [&window](const LaunchToken& token) { present(window, token); });
    connect(&m_tray, &Tray::openRequested, &window, [this, &window] {
        m_tray.hidePanel();
        present(window);
    });
    connect(&m_tray, &Tray::quitRequested, QCoreApplication::instance(), &QCoreApplication::quit,
            Qt::QueuedConnection);
    // The tray's panel must not keep the program alive after the main window is closed.
    connect(&window, &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            m_tray.hidePanel();
    });
}

void DesktopPresence::present(QQuickWindow& window, const LaunchToken& token)
{
    token.use();
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

} // namespace orlen

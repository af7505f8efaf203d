#pragma once

#include "window/tray/TrayItem.h"
#include "window/tray/TrayModel.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QPointer>

class QQmlEngine;
class QQuickWindow;

namespace orlen {

/// The item in the desktop's tray, with its small window. Main thread.
class Tray : public QObject {
    Q_OBJECT

public:
    /// All three outlive the tray.
    Tray(const QDBusConnection& bus, AppModel& app, QQmlEngine& engine, QObject* parent = nullptr);
    ~Tray() override;

    /// Shows the small window near this place of the screen, or hides it when it is shown.
    void togglePanel(const QPoint& place);
    void hidePanel();

Q_SIGNALS:
    void openRequested();
    void quitRequested();

private:
    void showPanel(const QPoint& place);
    [[nodiscard]] QQuickWindow* makePanel();

    QQmlEngine& m_engine;
    TrayModel m_model;
    TrayItem m_item;
    QPointer<QQuickWindow> m_panel; ///< made when it is first asked for
    QElapsedTimer m_sinceHidden;
};

} // namespace orlen

#pragma once

#include "window/tray/TrayItem.h"
#include "window/tray/TrayModel.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QPointer>

class QQmlEngine;
class QQuickWindow;

namespace orlen {

/// The item in the desktop's tray, with its panel. Main thread.
class Tray : public QObject {
    Q_OBJECT

public:
    /// All arguments outlive the tray.
    Tray(const QDBusConnection& bus, AppModel& app, QQmlEngine& engine, QObject* parent = nullptr);
    ~Tray() override;

    /// Shows the panel near this point of the screen, or hides it.
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
    QPointer<QQuickWindow> m_panel; ///< created on first use
    QElapsedTimer m_sinceHidden;
};

} // namespace orlen

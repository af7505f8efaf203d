#pragma once

#include "window/tray/TrayValues.h"

#include <QDBusConnection>
#include <QObject>
#include <QPoint>
#include <QString>

namespace orlen {

class TrayItemInterface;
class TrayMenuInterface;
class TrayRegistration;

/// An item in the desktop's tray: an icon with a title, and a menu with one disabled line, "open" and "quit".
/// Comes back when the tray restarts and does nothing on a desktop without one, so nothing may depend on it.
/// Main thread.
///
/// Qt's own tray item would not do: it looks for a tray only once, reports a click without its position, and
/// (as of Qt 6.4) passes on no activation token, without which Wayland does not bring the window to the
/// front.
class TrayItem : public QObject {
    Q_OBJECT

public:
    /// The constant parts. `iconName` is an icon of the desktop's theme; `pixmaps` are the fallback.
    struct Look {
        QString name; ///< of the program
        QString iconName;
        TrayPixmaps pixmaps;
        QString openLabel;
        QString quitLabel;
    };

    TrayItem(QDBusConnection bus, const Look& look, QObject* parent = nullptr);
    ~TrayItem() override;

    /// Sets the title, the tool tip and the menu's disabled line; the program's name until then.
    void setTitle(const QString& title);

Q_SIGNALS:
    /// The icon was clicked at this point of the screen; (0, 0) when the desktop does not say where.
    void activated(const QPoint& place);
    void openRequested();
    void quitRequested();

private:
    QDBusConnection m_bus;
    QObject m_itemObject;
    QObject m_menuObject;
    TrayItemInterface* m_item; ///< these two are owned by their objects
    TrayMenuInterface* m_menu;
    TrayRegistration* m_registration;
};

} // namespace orlen

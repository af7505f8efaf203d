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

/// An item in the desktop's tray: an icon with a title, and a menu of one quiet line, "open" and "quit". It
/// is there while the desktop has a tray, comes back when the tray restarts, and without one nothing happens.
/// Nothing may depend on it. Main thread.
class TrayItem : public QObject {
    Q_OBJECT

public:
    /// What does not change. `iconName` is an icon of the desktop's theme, `pixmaps` are shown where the
    /// theme has none.
    struct Look {
        QString name; ///< of the program
        QString iconName;
        TrayPixmaps pixmaps;
        QString openLabel;
        QString quitLabel;
    };

    TrayItem(QDBusConnection bus, const Look& look, QObject* parent = nullptr);
    ~TrayItem() override;

    /// The title, the tool tip and the quiet line of the menu; until it is set the program's name.
    void setTitle(const QString& title);

Q_SIGNALS:
    /// The icon was clicked, at this place of the screen where the desktop tells it, else at (0, 0).
    void activated(const QPoint& place);
    void openRequested();
    void quitRequested();

private:
    QDBusConnection m_bus;
    QObject m_itemObject;
    QObject m_menuObject;
    TrayItemInterface* m_item; ///< owned by its object, as the next
    TrayMenuInterface* m_menu;
    TrayRegistration* m_registration;
};

} // namespace orlen

#pragma once

#include "window/tray/TrayValues.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QPoint>

#include <functional>

namespace orlen {

/// The D-Bus interface of a tray item: "org.kde.StatusNotifierItem". Capitalisation follows the protocol.
class TrayItemInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(uint WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ iconName CONSTANT)
    Q_PROPERTY(orlen::TrayPixmaps IconPixmap READ iconPixmap CONSTANT)
    Q_PROPERTY(orlen::TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    /// A label next to the icon on some desktops, and its longest possible text.
    Q_PROPERTY(QString XAyatanaLabel READ title)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide CONSTANT)

public:
    struct Look {
        QString name;
        QString iconName;
        TrayPixmaps pixmaps;
        QString menuPath;
    };

    /// Functions, not signals: signals of an adaptor are sent on the bus.
    struct Clicks {
        std::function<void(const QPoint& place)> first;
        std::function<void()> second; ///< middle button
    };

    TrayItemInterface(const Look& look, Clicks clicks, QObject* parent);

    void setTitle(const QString& title);

    [[nodiscard]] QString category() const { return QStringLiteral("Hardware"); }
    [[nodiscard]] QString id() const { return m_look.name.toLower(); }
    [[nodiscard]] QString title() const { return m_title; }
    /// Never "Passive", which desktops hide.
    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
    /// None in particular.
    [[nodiscard]] uint windowId() const { return 0; }
    [[nodiscard]] QString iconName() const { return m_look.iconName; }
    [[nodiscard]] TrayPixmaps iconPixmap() const { return m_look.pixmaps; }
    [[nodiscard]] TrayToolTip toolTip() const;
    /// A click activates; the other button opens the menu.
    [[nodiscard]] bool itemIsMenu() const { return false; }
    [[nodiscard]] QDBusObjectPath menu() const { return QDBusObjectPath(m_look.menuPath); }
    [[nodiscard]] QString labelGuide() const { return QStringLiteral("999.9 GB free"); }

    Q_SLOT void Activate(int x, int y) { m_clicks.first(QPoint(x, y)); }
    Q_SLOT void SecondaryActivate(int /*x*/, int /*y*/) { m_clicks.second(); }
    /// The desktop shows the menu itself.
    Q_SLOT void ContextMenu(int /*x*/, int /*y*/) {}
    Q_SLOT void Scroll(int /*delta*/, const QString& /*orientation*/) {}

Q_SIGNALS:
    void NewTitle();
    void NewToolTip();
    void XAyatanaNewLabel(const QString& label, const QString& guide);

private:
    const Look m_look;
    const Clicks m_clicks;
    QString m_title;
};

} // namespace orlen

#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// The values that a tray item and its menu exchange with the desktop, and their D-Bus encoding. Field names
/// follow the two protocols.
namespace orlen {

/// (iiay): ARGB, the most significant byte first.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    [[nodiscard]] static TrayPixmap fromImage(const QImage& image);
};
using TrayPixmaps = QList<TrayPixmap>;

/// (sa(iiay)ss)
struct TrayToolTip {
    QString icon;
    TrayPixmaps pixmaps;
    QString title;
    QString text;
};

/// (ia{sv}av): a menu entry with its children.
struct TrayMenuNode {
    int id = 0;
    QVariantMap properties;
    QList<TrayMenuNode> children;
};

/// (ia{sv})
struct TrayMenuProperties {
    int id = 0;
    QVariantMap properties;
};
using TrayMenuPropertiesList = QList<TrayMenuProperties>;

/// (ias)
struct TrayMenuNames {
    int id = 0;
    QStringList names;
};
using TrayMenuNamesList = QList<TrayMenuNames>;

/// (isvu)
struct TrayMenuEvent {
    int id = 0;
    QString name;
    QVariant data;
    uint time = 0;
};
using TrayMenuEvents = QList<TrayMenuEvent>;

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& tip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& tip);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuProperties& properties);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuProperties& properties);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNames& names);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNames& names);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuEvent& event);

/// Registers the types with Qt's D-Bus library. Call before the first one is sent or read.
void registerTrayValues();

} // namespace orlen

Q_DECLARE_METATYPE(orlen::TrayPixmap)
Q_DECLARE_METATYPE(orlen::TrayToolTip)
Q_DECLARE_METATYPE(orlen::TrayMenuNode)
Q_DECLARE_METATYPE(orlen::TrayMenuProperties)
Q_DECLARE_METATYPE(orlen::TrayMenuNames)
Q_DECLARE_METATYPE(orlen::TrayMenuEvent)

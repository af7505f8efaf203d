#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <tuple>

/// The values that a tray item and its menu exchange with the desktop, and their D-Bus encoding. Field names
/// follow the two protocols.
namespace orlen {

/// (iiay): ARGB, the most significant byte first.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    [[nodiscard]] static TrayPixmap fromImage(const QImage& image);

    static auto fields(auto& value) { return std::tie(value.width, value.height, value.bytes); }
};
using TrayPixmaps = QList<TrayPixmap>;

/// (sa(iiay)ss)
struct TrayToolTip {
    QString icon;
    TrayPixmaps pixmaps;
    QString title;
    QString text;

    static auto fields(auto& value) { return std::tie(value.icon, value.pixmaps, value.title, value.text); }
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

    static auto fields(auto& value) { return std::tie(value.id, value.properties); }
};
using TrayMenuPropertiesList = QList<TrayMenuProperties>;

/// (ias)
struct TrayMenuNames {
    int id = 0;
    QStringList names;

    static auto fields(auto& value) { return std::tie(value.id, value.names); }
};
using TrayMenuNamesList = QList<TrayMenuNames>;

/// (isvu)
struct TrayMenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint time = 0;

    static auto fields(auto& value) { return std::tie(value.id, value.name, value.data, value.time); }
};
using TrayMenuEvents = QList<TrayMenuEvent>;

/// A structure whose `fields` are sent one after another.
template <typename T>
concept TrayStructure = requires(T& value)
{
    T::fields(value);
};

template <TrayStructure T>
QDBusArgument& operator<<(QDBusArgument& argument, const T& value)
{
    argument.beginStructure();
    std::apply([&](const auto&... fields) { (argument << ... << fields); }, T::fields(value));
    argument.endStructure();
    return argument;
}

template <TrayStructure T>
const QDBusArgument& operator>>(const QDBusArgument& argument, T& value)
{
    argument.beginStructure();
    std::apply([&](auto&... fields) { (argument >> ... >> fields); }, T::fields(value));
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNode& node);

/// Registers the types with Qt's D-Bus library. Call before the first one is sent or read.
void registerTrayValues();

} // namespace orlen

Q_DECLARE_METATYPE(orlen::TrayPixmap)
Q_DECLARE_METATYPE(orlen::TrayToolTip)
Q_DECLARE_METATYPE(orlen::TrayMenuNode)
Q_DECLARE_METATYPE(orlen::TrayMenuProperties)
Q_DECLARE_METATYPE(orlen::TrayMenuNames)
Q_DECLARE_METATYPE(orlen::TrayMenuEvent)

#include "window/tray/TrayValues.h"

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QtEndian>

namespace orlen {

namespace {

/// Qt's D-Bus library finds a parameter's type by the name written in the slot or signal.
template <typename List>
void registerList(const char* name)
{
    qDBusRegisterMetaType<List>();
    qRegisterMetaType<List>(name);
}

} // namespace

TrayPixmap TrayPixmap::fromImage(const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    TrayPixmap pixmap{argb.width(), argb.height(), QByteArray(argb.sizeInBytes(), Qt::Uninitialized)};
    // With four bytes per pixel, lines have no padding.
    qToBigEndian<quint32>(argb.constBits(), argb.sizeInBytes() / 4, pixmap.bytes.data());
    return pixmap;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNode& node)
{
    argument.beginStructure();
    argument << node.id << node.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const TrayMenuNode& child : node.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNode& node)
{
    argument.beginStructure();
    argument >> node.id >> node.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        node.children.append(qdbus_cast<TrayMenuNode>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

void registerTrayValues()
{
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<TrayToolTip>();
    qDBusRegisterMetaType<TrayMenuNode>();
    qDBusRegisterMetaType<TrayMenuProperties>();
    qDBusRegisterMetaType<TrayMenuNames>();
    qDBusRegisterMetaType<TrayMenuEvent>();
    registerList<TrayPixmaps>("orlen::TrayPixmaps");
    registerList<TrayMenuPropertiesList>("orlen::TrayMenuPropertiesList");
    registerList<TrayMenuNamesList>("orlen::TrayMenuNamesList");
    registerList<TrayMenuEvents>("orlen::TrayMenuEvents");
}

} // namespace orlen

#include "journeys/FocusShown.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

namespace orlen::FocusShown {

namespace {

/// In pixels; places are fractions of one.
constexpr double kRounding = 1;

QString nameOf(const QQuickItem& item)
{
    return QString::fromUtf8(item.metaObject()->className()).section(u'_', 0, 0) + u' ' + item.objectName();
}

QRectF placeOf(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

/// The part of the window in which an item can be seen.
QRectF roomOf(const QQuickItem& item, const QQuickWindow& window)
{
    QRectF room(QPointF(), window.size());
    for (const QQuickItem* around = item.parentItem(); around != nullptr; around = around->parentItem())
        if (around->clip())
            room &= placeOf(*around);
    return room;
}

/// The item that a focus ring is drawn around, in this item or what it contains; null if there is none.
const QQuickItem* ringed(const QQuickItem& item)
{
    for (const QQuickItem* child : item.childItems()) {
        if (!child->isVisible())
            continue;
        if (QString::fromUtf8(child->metaObject()->className()).startsWith(u"FocusRing"))
            return &item;
        // A tile of the disk map has an edge.
        if (child->property("isCurrent").toBool())
            return child;
        if (const QQuickItem* found = ringed(*child))
            return found;
    }
    return nullptr;
}

} // namespace

QString fault(const QQuickWindow& window)
{
    QQuickItem* item = window.activeFocusItem();
    if (item == nullptr || item == window.contentItem())
        return QStringLiteral("nothing has the keyboard");
    // Text fields draw their edge and a cursor.
    const QQuickItem* marked = item->inherits("QQuickTextInput") ? item : ringed(*item);
    if (marked == nullptr)
        return nameOf(*item) + QStringLiteral(" is not marked");
    const QRectF place = placeOf(*marked);
    if (!roomOf(*marked, window).adjusted(-kRounding, -kRounding, kRounding, kRounding).contains(place))
        return nameOf(*item) + QStringLiteral(" is out of sight");
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(item);
    if (spoken == nullptr || spoken->text(QAccessible::Name).isEmpty())
        return nameOf(*item) + QStringLiteral(" has no name");
    return {};
}

} // namespace orlen::FocusShown

#include "journeys/ShownTexts.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace orlen::ShownTexts {

namespace {

constexpr double kRounding = 1;

void collect(const QQuickItem& item, std::vector<const QQuickItem*>& texts)
{
    if (!item.isVisible() || item.opacity() <= 0)
        return;
    // What can be edited or copied comes from the person, the disk or the rules.
    if (item.inherits("QQuickText") && item.width() > 0 && item.height() > 0)
        texts.push_back(&item);
    for (const QQuickItem* child : item.childItems())
        collect(*child, texts);
}

std::vector<const QQuickItem*> textsIn(const QQuickItem& root)
{
    std::vector<const QQuickItem*> texts;
    collect(root, texts);
    return texts;
}

QString textOf(const QQuickItem& item)
{
    return item.property("text").toString();
}

bool wasLookedUp(const QQuickItem& item)
{
    return textOf(item).contains(u'[');
}

QString outsideBrackets(const QString& text)
{
    QString rest;
    int depth = 0;
    for (const QChar letter : text) {
        depth += letter == u'[' ? 1 : 0;
        rest += depth == 0 ? letter : QChar(u' ');
        depth -= letter == u']' ? 1 : 0;
    }
    return rest;
}

QString withoutNames(QString text, const QStringList& names)
{
    static const QRegularExpression paths(QStringLiteral("\\S*[/~]\\S*"));
    static const QRegularExpression keys(QStringLiteral("\\b([A-Z]|F\\d+)\\b"));
    static const QRegularExpression figures(
        QStringLiteral("\\d[\\s\u00a0]?(Bytes?|kB|KB|MB|GB|TB|ms|s|min|Sek\\.|Min\\.)(?!\\w)"));
    for (const QString& name : names)
        text.replace(name, QString());
    return text.remove(paths).remove(figures).remove(keys);
}

bool isInSidewaysList(const QQuickItem& item)
{
    for (const QQuickItem* around = item.parentItem(); around != nullptr; around = around->parentItem()) {
        if (around->inherits("QQuickFlickable") &&
            around->property("contentWidth").toDouble() > around->width())
            return true;
    }
    return false;
}

/// Whether less of it is seen than there is.
bool isCut(const QQuickItem& item)
{
    // A path may lose its middle.
    const bool isPath = item.property("elide").toInt() == Qt::ElideMiddle && textOf(item).contains(u'/');
    if (isPath)
        return false;
    if (item.property("truncated").toBool() ||
        item.property("contentWidth").toDouble() > item.width() + kRounding)
        return true;
    if (isInSidewaysList(item))
        return false;
    const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    return place.left() < -kRounding || place.right() > item.window()->width() + kRounding;
}

} // namespace

QStringList notLookedUp(const QQuickItem& root, QStringList names)
{
    static const QRegularExpression words(QStringLiteral("[[:alpha:]]"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    // A name may hold another.
    std::ranges::sort(names, std::ranges::greater(), &QString::size);
    QStringList found;
    for (const QQuickItem* item : textsIn(root)) {
        if (withoutNames(outsideBrackets(textOf(*item)), names).contains(words))
            found << textOf(*item);
    }
    return found;
}

QStringList cut(const QQuickItem& root)
{
    QStringList found;
    for (const QQuickItem* item : textsIn(root)) {
        if (wasLookedUp(*item) && isCut(*item))
            found << textOf(*item);
    }
    return found;
}

} // namespace orlen::ShownTexts

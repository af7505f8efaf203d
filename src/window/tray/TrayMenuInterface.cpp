#include "window/tray/TrayMenuInterface.h"

#include <QGuiApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

/// Only properties change, never the entries.
constexpr uint kRevision = 1;

QString label(QString text)
{
    return text.replace(u'_', QStringLiteral("__")); // a single one marks the next letter as a shortcut
}

} // namespace

TrayMenuInterface::TrayMenuInterface(const Labels& labels, Choices choices, QObject* parent)
    : QDBusAbstractAdaptor(parent), m_labels(labels), m_choices(std::move(choices))
{
}

void TrayMenuInterface::setLine(const QString& text)
{
    if (m_line == text)
        return;
    m_line = text;
    Q_EMIT ItemsPropertiesUpdated({{line, properties(line)}}, {});
}

QString TrayMenuInterface::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

QVariantMap TrayMenuInterface::properties(int id) const
{
    const QString labelKey = QStringLiteral("label");
    switch (static_cast<Entry>(id)) {
    case menu:
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    case line:
        return {{labelKey, label(m_line)}, {QStringLiteral("enabled"), false}};
    case separator:
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    case open:
        return {{labelKey, label(m_labels.open)}};
    case quit:
        return {{labelKey, label(m_labels.quit)}};
    }
    return {};
}

QVariantMap TrayMenuInterface::properties(int id, const QStringList& names) const
{
    QVariantMap wanted = properties(id);
    if (!names.isEmpty())
        wanted.removeIf([&](const auto& property) { return !names.contains(property.key()); });
    return wanted;
}

uint TrayMenuInterface::GetLayout(int parentId, int depth, const QStringList& names, TrayMenuNode& layout)
{
    layout = {parentId, properties(parentId, names), {}};
    if (parentId == menu && depth != 0) {
        for (const int id : {line, separator, open, quit})
            layout.children.append({id, properties(id, names), {}});
    }
    return kRevision;
}

TrayMenuPropertiesList TrayMenuInterface::GetGroupProperties(const QList<int>& ids, const QStringList& names)
{
    // No names means all.
    const QList<int> wanted = ids.isEmpty() ? QList<int>{menu, line, separator, open, quit} : ids;
    TrayMenuPropertiesList list;
    for (const int id : wanted) {
        if (isEntry(id))
            list.append({id, properties(id, names)});
    }
    return list;
}

QDBusVariant TrayMenuInterface::GetProperty(int id, const QString& name)
{
    // A variant without a value cannot be sent.
    return QDBusVariant(properties(id).value(name, QString()));
}

void TrayMenuInterface::Event(int id, const QString& name, const QDBusVariant& /*data*/, uint /*time*/)
{
    if (name != QLatin1String("clicked"))
        return;
    if (id == open)
        m_choices.open();
    if (id == quit)
        m_choices.quit();
}

QList<int> TrayMenuInterface::EventGroup(const TrayMenuEvents& events)
{
    QList<int> unknown;
    for (const TrayMenuEvent& event : events) {
        if (isEntry(event.id))
            Event(event.id, event.name, event.data, event.time);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool TrayMenuInterface::AboutToShow(int /*id*/)
{
    return false; // the menu is always up to date
}

QList<int> TrayMenuInterface::AboutToShowGroup(const QList<int>& ids, QList<int>& unknown)
{
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(unknown), [](int id) { return !isEntry(id); });
    return {};
}

} // namespace orlen

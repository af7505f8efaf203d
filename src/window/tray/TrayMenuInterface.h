#pragma once

#include "window/tray/TrayValues.h"

#include <QDBusAbstractAdaptor>
#include <QDBusVariant>

#include <functional>

namespace orlen {

/// The D-Bus interface of the tray item's menu, "com.canonical.dbusmenu": a disabled line, "open" and "quit".
/// Capitalisation follows the protocol. Non-const reference arguments are further return values of a call.
class TrayMenuInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    struct Labels {
        QString open;
        QString quit;
    };
    /// Functions, not signals: signals of an adaptor are sent on the bus.
    struct Choices {
        std::function<void()> open;
        std::function<void()> quit;
    };

    TrayMenuInterface(const Labels& labels, Choices choices, QObject* parent);

    void setLine(const QString& line);

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString textDirection() const;
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

    /// Returns the revision of the menu; `layout` receives the entry and its children.
    Q_SLOT uint GetLayout(int parentId, int depth, const QStringList& names, orlen::TrayMenuNode& layout);
    Q_SLOT orlen::TrayMenuPropertiesList GetGroupProperties(const QList<int>& ids, const QStringList& names);
    Q_SLOT QDBusVariant GetProperty(int id, const QString& name);
    Q_SLOT void Event(int id, const QString& name, const QDBusVariant& data, uint time);
    /// Returns the ids that do not exist.
    Q_SLOT QList<int> EventGroup(const orlen::TrayMenuEvents& events);
    Q_SLOT bool AboutToShow(int id);
    Q_SLOT QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& unknown);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parent);
    void ItemsPropertiesUpdated(const orlen::TrayMenuPropertiesList& changed,
                                const orlen::TrayMenuNamesList& removed);

private:
    /// Ids of the entries. In the protocol, 0 is the menu itself.
    enum Entry : int { menu, line, separator, open, quit };

    [[nodiscard]] static bool isEntry(int id) { return id >= menu && id <= quit; }
    [[nodiscard]] QVariantMap properties(int id) const;
    [[nodiscard]] QVariantMap properties(int id, const QStringList& names) const;

    QString m_line;
    const Labels m_labels;
    const Choices m_choices;
};

} // namespace orlen

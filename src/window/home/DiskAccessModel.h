#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Whether the program may read protected folders, and how to allow it. Checks again whenever the user
/// returns to the window, perhaps after granting access. Main thread.
class DiskAccessModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool granted READ isGranted NOTIFY grantedChanged)
    /// The command that grants access; empty when there is nothing to grant.
    Q_PROPERTY(QString command READ command CONSTANT)

public:
    explicit DiskAccessModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isGranted() const { return m_app.results()->isFdaGranted(); }
    [[nodiscard]] QString command() const { return m_command; }

    /// Copies the command to the clipboard.
    Q_INVOKABLE void copyCommand() const;

Q_SIGNALS:
    void grantedChanged();

private:
    AppModel& m_app;
    QString m_command;
};

} // namespace orlen

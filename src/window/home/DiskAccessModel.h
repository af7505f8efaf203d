#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// How the program may come to read protected folders. Probes again whenever the user comes back to the
/// window, perhaps from granting it. Main thread.
class DiskAccessModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool granted READ isGranted NOTIFY grantedChanged)
    /// The command that grants access; empty where there is nothing to grant.
    Q_PROPERTY(QString command READ command CONSTANT)

public:
    explicit DiskAccessModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isGranted() const;
    [[nodiscard]] QString command() const { return m_command; }

    /// Puts the command onto the clipboard.
    Q_INVOKABLE void copyCommand() const;

Q_SIGNALS:
    void grantedChanged();

private:
    AppModel& m_app;
    QString m_command;
};

} // namespace orlen

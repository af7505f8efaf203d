#pragma once

#include "app/Workers.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Whether Orlen opens at login, and the desktop's own page for what does. Main thread, and needs its event
/// loop; workers handle the disk and child processes.
class LoginItemModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Whether Orlen opens at login; during a change, the new value.
    Q_PROPERTY(bool registered READ isRegistered NOTIFY registeredChanged)
    Q_PROPERTY(bool busy READ isBusy NOTIFY registeredChanged)
    /// Why the last change failed; empty when it succeeded.
    Q_PROPERTY(QString obstacle READ obstacle NOTIFY registeredChanged)
    /// Whether the desktop has such a page.
    Q_PROPERTY(bool hasSettings READ hasSettings NOTIFY hasSettingsChanged)

public:
    LoginItemModel();

    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    [[nodiscard]] QString obstacle() const { return m_obstacle; }
    [[nodiscard]] bool hasSettings() const { return m_hasSettings; }

    /// Checks whether Orlen opens at login, and for the desktop's page.
    Q_INVOKABLE void load();
    /// Switches whether it does. Shows the real value again on failure.
    Q_INVOKABLE void toggleRegistered();
    /// Opens the desktop's own settings page.
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void registeredChanged();
    void hasSettingsChanged();
    void settingsFailed();

private:
    struct Change;
    struct Found;

    void setRegistered(bool isRegistered, QString obstacle);
    void take(const Found& found);

    bool m_isRegistered = false;
    bool m_isBusy = false;
    QString m_obstacle;
    bool m_hasSettings = false;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

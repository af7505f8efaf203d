#pragma once

#include "app/Workers.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// Login items: whether Orlen opens at login and, when the user asks, the names of all that do. Main thread,
/// and needs its event loop; workers handle the disk and child processes.
class LoginItemModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Whether Orlen opens at login; during a change, the new value.
    Q_PROPERTY(bool registered READ isRegistered NOTIFY registeredChanged)
    Q_PROPERTY(bool busy READ isBusy NOTIFY registeredChanged)
    /// Why the last change failed; empty when it succeeded.
    Q_PROPERTY(QString obstacle READ obstacle NOTIFY registeredChanged)
    Q_PROPERTY(Names names READ names NOTIFY namesChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< of a login item
    };
    Q_ENUM(Role)
    /// State of the list of names.
    enum Names { NotAsked, Asking, Known, Unreadable };
    Q_ENUM(Names)

    LoginItemModel();

    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    [[nodiscard]] QString obstacle() const { return m_obstacle; }
    [[nodiscard]] Names names() const { return m_names; }

    /// Checks whether Orlen opens at login.
    Q_INVOKABLE void load();
    /// Switches whether it does. Shows the real value again on failure.
    Q_INVOKABLE void toggleRegistered();
    /// Asks the desktop for the names.
    Q_INVOKABLE void ask();
    /// Opens the desktop's own settings page.
    Q_INVOKABLE void openSettings();

Q_SIGNALS:
    void registeredChanged();
    void namesChanged();
    void settingsFailed();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Change;

    void setRegistered(bool isRegistered, QString obstacle);
    void setNames(Names names, std::vector<std::string> items);

    bool m_isRegistered = false;
    bool m_isBusy = false;
    QString m_obstacle;
    Names m_names = NotAsked;
    std::vector<std::string> m_items;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

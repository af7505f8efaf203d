#pragma once

#include "app/Workers.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// Login items: the names of those that the desktop opens, asked for by the user, and whether this program is
/// among them. Main thread, and needs its event loop; the disk and child processes are left to workers.
class LoginItemModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Whether this program opens at login; while a change is made, the value that it will have.
    Q_PROPERTY(bool registered READ isRegistered NOTIFY registeredChanged)
    Q_PROPERTY(bool busy READ isBusy NOTIFY registeredChanged)
    /// Why the last change could not be made; empty when it could.
    Q_PROPERTY(QString obstacle READ obstacle NOTIFY registeredChanged)
    Q_PROPERTY(Names names READ names NOTIFY namesChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< of a login item
    };
    Q_ENUM(Role)
    /// Where the names stand.
    enum Names { NotAsked, Asking, Known, Unreadable };
    Q_ENUM(Names)

    LoginItemModel();
    ~LoginItemModel() override;

    [[nodiscard]] bool isRegistered() const { return m_isRegistered; }
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    [[nodiscard]] QString obstacle() const { return m_obstacle; }
    [[nodiscard]] Names names() const { return m_names; }

    /// Looks whether this program opens at login.
    Q_INVOKABLE void load();
    /// Switches that. The real value shows again when it fails.
    Q_INVOKABLE void toggleRegistered();
    /// Asks for the names.
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

#include "window/startup/LoginItemModel.h"

#include "platform/process/ChildProcess.h"
#include "tools/startup/LoginItems.h"
#include "window/lists/DisplayText.h"

#include <optional>
#include <utility>

namespace orlen {

struct LoginItemModel::Change {
    std::optional<std::string> obstacle;
    bool isRegistered = false;
};

LoginItemModel::LoginItemModel() : m_workers(*this) {}

void LoginItemModel::load()
{
    m_workers.start([](const std::stop_token&) { return LoginItems::isRegistered(); },
                    [this](bool isRegistered) {
                        // A change that started in the meantime is newer.
                        if (!m_isBusy)
                            setRegistered(isRegistered, m_obstacle);
                    });
}

void LoginItemModel::toggleRegistered()
{
    if (m_isBusy)
        return;
    const bool isWanted = !m_isRegistered;
    m_isBusy = true;
    setRegistered(isWanted, {});
    m_workers.start(
        [isWanted](const std::stop_token&) {
            Change change;
            change.obstacle = LoginItems::setRegistered(isWanted);
            change.isRegistered = LoginItems::isRegistered();
            return change;
        },
        [this](const Change& change) {
            m_isBusy = false;
            setRegistered(change.isRegistered, DisplayText::path(change.obstacle.value_or("")));
        });
}

void LoginItemModel::ask()
{
    if (m_names == Asking)
        return;
    m_names = Asking;
    Q_EMIT namesChanged();
    m_workers.start([](const std::stop_token&) { return LoginItems::names(); },
                    [this](std::optional<std::vector<std::string>> names) {
                        const Names state = names ? Known : Unreadable;
                        setNames(state, std::move(names).value_or(std::vector<std::string>{}));
                    });
}

void LoginItemModel::openSettings()
{
    m_workers.start(
        [](const std::stop_token&) {
            const std::vector<std::string> command = LoginItems::settingsCommand();
            return !command.empty() && ChildProcess::startDetached(command);
        },
        [this](bool wasStarted) {
            if (!wasStarted)
                Q_EMIT settingsFailed();
        });
}

void LoginItemModel::setRegistered(bool isRegistered, QString obstacle)
{
    m_isRegistered = isRegistered;
    m_obstacle = std::move(obstacle);
    Q_EMIT registeredChanged();
}

void LoginItemModel::setNames(Names names, std::vector<std::string> items)
{
    resetRows(m_items, std::move(items));
    m_names = names;
    Q_EMIT namesChanged();
}

QVariant LoginItemModel::value(std::size_t number, int role) const
{
    return role == static_cast<int>(Role::name) ? DisplayText::path(m_items[number]) : QVariant();
}

} // namespace orlen

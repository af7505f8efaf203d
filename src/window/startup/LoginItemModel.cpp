#include "window/startup/LoginItemModel.h"

#include "platform/process/ChildProcess.h"
#include "tools/startup/LoginItems.h"
#include "window/lists/DisplayText.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orlen {

struct LoginItemModel::Found {
    bool isRegistered = false;
    bool hasSettings = false;
};

struct LoginItemModel::Change {
    std::optional<Text> obstacle;
    bool isRegistered = false;
};

LoginItemModel::LoginItemModel() : m_workers(*this) {}

void LoginItemModel::load()
{
    m_workers.start(
        [](const std::stop_token&) {
            return Found{LoginItems::isRegistered(), !LoginItems::settingsCommand().empty()};
        },
        [this](const Found& found) { take(found); });
}

void LoginItemModel::take(const Found& found)
{
    // A change that started in the meantime is newer.
    if (!m_isBusy)
        setRegistered(found.isRegistered, m_obstacle);
    if (std::exchange(m_hasSettings, found.hasSettings) != found.hasSettings)
        Q_EMIT hasSettingsChanged();
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
            setRegistered(change.isRegistered,
                          change.obstacle ? DisplayText::text(*change.obstacle) : QString());
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

} // namespace orlen

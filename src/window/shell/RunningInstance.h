#pragma once

#include "platform/files/FileLock.h"
#include "window/shell/LaunchToken.h"

#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace orlen {

/// Sees to it that a session has one Orlen window: by the program's name on the session bus, which also lets
/// the desktop bring it to the front; without a bus by a lock file in the user's run-time folder. Main
/// thread.
class RunningInstance : public QObject {
    Q_OBJECT

public:
    enum class Claim {
        ours,        ///< this process is the one
        raisedOther, ///< there is another, which has been asked to come to the front
        blocked,     ///< there is another, which does not answer
    };

    explicit RunningInstance(QDBusConnection bus, QObject* parent = nullptr);
    /// Gives the place up.
    ~RunningInstance() override;

    /// Takes the place, or asks the process that has it to show itself. Waits for the other's answer, for a
    /// few seconds at most.
    [[nodiscard]] Claim claim(const LaunchToken& token);

Q_SIGNALS:
    /// Somebody wants to see the window.
    void activated(const orlen::LaunchToken& token);

private:
    [[nodiscard]] Claim claimName(const LaunchToken& token);
    [[nodiscard]] Claim claimLock();
    [[nodiscard]] Claim raiseOther(const LaunchToken& token);

    QDBusConnection m_bus;
    bool m_hasName = false;
    std::optional<FileLock> m_lock;
};

} // namespace orlen

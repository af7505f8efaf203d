#pragma once

#include "platform/files/FileLock.h"
#include "window/shell/LaunchToken.h"

#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace orlen {

/// Ensures that a session has only one Orlen window: by owning a name on the session bus, which also lets the
/// desktop activate it, or by a lock file in the user's runtime folder when there is no bus. Main thread.
class RunningInstance : public QObject {
    Q_OBJECT

public:
    enum class Claim {
        ours,        ///< this process is the only one
        raisedOther, ///< another one was asked to come to the front
        blocked,     ///< another one exists but does not answer
    };

    explicit RunningInstance(QDBusConnection bus, QObject* parent = nullptr);
    /// Releases the claim.
    ~RunningInstance() override;

    /// Claims to be the only instance, or asks the existing one to show itself, waiting at most a few seconds
    /// for its answer.
    [[nodiscard]] Claim claim(const LaunchToken& token);

Q_SIGNALS:
    /// Another process or the desktop asks for the window.
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

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

namespace orlen {

/// A session bus of the test program's own, on which nothing is and which starts nothing. Make it before
/// anything asks for the session bus.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    /// A further connection, as another program has one.
    [[nodiscard]] static QDBusConnection connection(const QString& name);

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
};

} // namespace orlen

#include "PrivateBus.h"

#include "support/TempHome.h"

#include <QFile>

#include <csignal>
#include <cstdlib>
#include <sys/prctl.h>

namespace orlen {

namespace {

constexpr const char* kSettings = R"(<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus()
{
    QFile settings(m_folder.filePath("settings"));
    if (!settings.open(QIODevice::WriteOnly))
        std::abort();
    settings.write(QString::fromUtf8(kSettings).arg(m_folder.path()).toUtf8());
    settings.close();
    // A crash of the tests must not leave it behind.
    m_daemon.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    TempHome::useSystemTools();
    m_daemon.start("dbus-daemon", {"--nofork", "--print-address", "--config-file=" + settings.fileName()});
    if (!m_daemon.waitForReadyRead())
        std::abort();
    const QByteArray address = m_daemon.readLine().trimmed();
    ::setenv("DBUS_SESSION_BUS_ADDRESS", address.constData(), 1);
}

PrivateBus::~PrivateBus()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection(const QString& name)
{
    return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name);
}

} // namespace orlen

#include "window/shell/RunningInstance.h"

#include "platform/process/OwnProgram.h"
#include "platform/text/PathText.h"
#include "window/shell/ApplicationInterface.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <cerrno>
#include <string>
#include <utility>

namespace orlen {

namespace {

constexpr int kAnswerMilliseconds = 5'000;

const QString& busName()
{
    static const QString name = QString::fromUtf8(OwnProgram::identifier().data(),
                                                  static_cast<qsizetype>(OwnProgram::identifier().size()));
    return name;
}

/// The object path that the desktop entry rules derive from the name.
QString objectPath()
{
    return u'/' + QString(busName()).replace(u'.', u'/');
}

} // namespace

RunningInstance::RunningInstance(QDBusConnection bus, QObject* parent)
    : QObject(parent), m_bus(std::move(bus))
{
    const auto activate = [this](const LaunchToken& token) { Q_EMIT activated(token); };
    new ApplicationInterface(activate, this);
}

RunningInstance::~RunningInstance()
{
    if (m_hasName)
        m_bus.unregisterService(busName());
}

RunningInstance::Claim RunningInstance::claim(const LaunchToken& token)
{
    return m_bus.isConnected() ? claimName(token) : claimLock();
}

RunningInstance::Claim RunningInstance::claimName(const LaunchToken& token)
{
    // Register the object first: whoever sees the name may call it at once.
    m_bus.registerObject(objectPath(), this, QDBusConnection::ExportAdaptors);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        m_bus.interface()->registerService(busName());
    m_hasName = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    // A bus that grants no names, as in some sandboxes, must not keep the window from opening.
    if (m_hasName || !reply.isValid())
        return Claim::ours;
    m_bus.unregisterObject(objectPath());
    return raiseOther(token);
}

RunningInstance::Claim RunningInstance::raiseOther(const LaunchToken& token)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        busName(), objectPath(), QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    call << token.platformData();
    const QDBusMessage answer = m_bus.call(call, QDBus::Block, kAnswerMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage ? Claim::raisedOther : Claim::blocked;
}

RunningInstance::Claim RunningInstance::claimLock()
{
    const std::string folder = qgetenv("XDG_RUNTIME_DIR").toStdString();
    if (!folder.starts_with('/'))
        return Claim::ours;
    auto lock = FileLock::take(PathText::join(folder, std::string(OwnProgram::identifier()) + ".lock"));
    // If the lock fails, nothing is known, and two windows are better than none.
    if (!lock.ok())
        return lock.error() == EWOULDBLOCK ? Claim::blocked : Claim::ours;
    m_lock = std::move(lock).value();
    return Claim::ours;
}

} // namespace orlen

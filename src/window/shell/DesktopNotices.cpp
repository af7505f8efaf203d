#include "window/shell/DesktopNotices.h"

#include "platform/process/OwnProgram.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

#include <utility>

namespace orlen {

namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kDefaultAction = QStringLiteral("default"); // a click on the notice itself
constexpr int kDesktopDecides = -1;

QString identifier()
{
    return QString::fromUtf8(OwnProgram::identifier().data(),
                             static_cast<qsizetype>(OwnProgram::identifier().size()));
}

} // namespace

DesktopNotices::DesktopNotices(QDBusConnection bus, const QString& openLabel, QObject* parent)
    : QObject(parent), m_bus(std::move(bus)), m_openLabel(openLabel)
{
    if (!m_bus.isConnected())
        return;
    // The token, if the desktop sends one, arrives before the action.
    m_bus.connect(kService, kPath, kService, QStringLiteral("ActivationToken"), this,
                  SLOT(keepToken(uint, QString)));
    m_bus.connect(kService, kPath, kService, QStringLiteral("ActionInvoked"), this,
                  SLOT(open(uint, QString)));
}

void DesktopNotices::show(const Notice& notice)
{
    if (!m_bus.isConnected())
        return;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), identifier()}};
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Notify"));
    call << QGuiApplication::applicationName() << m_id << identifier() << notice.title
         << notice.text.toHtmlEscaped() << QStringList{kDefaultAction, m_openLabel} << hints
         << kDesktopDecides;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, &DesktopNotices::keepNumber);
}

void DesktopNotices::keepNumber(QDBusPendingCallWatcher* finished)
{
    finished->deleteLater();
    const QDBusPendingReply<uint> reply = *finished;
    m_id = reply.isValid() ? reply.value() : 0;
    m_token = {};
}

void DesktopNotices::keepToken(uint id, const QString& token)
{
    if (id == m_id)
        m_token = {token, {}};
}

void DesktopNotices::open(uint id, const QString& action)
{
    if (id == m_id && id != 0 && action == kDefaultAction)
        Q_EMIT opened(std::exchange(m_token, {}));
}

} // namespace orlen

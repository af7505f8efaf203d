#include "window/shell/Reveal.h"

#include "clean/trash/Trash.h"
#include "platform/desktop/SessionBus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "platform/text/PercentCoding.h"
#include "window/lists/DisplayText.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <utility>

namespace orlen {

namespace {

constexpr int kLimitMilliseconds = 3000;

Reveal* theReveal = nullptr; // main thread only

QString reference(const std::string& path)
{
    return QStringLiteral("file://") + QString::fromStdString(PercentCoding::encoded(path));
}

/// Sends the call; `failure` runs when there is no bus, no answer in time, or an error.
void call(const QDBusMessage& message, QObject* context, const std::function<void()>& failure)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    // Without a bus a pending call would never end.
    if (!bus.isConnected()) {
        failure();
        return;
    }
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, kLimitMilliseconds), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [failure](auto* finished) {
        finished->deleteLater();
        if (finished->isError())
            failure();
    });
}

} // namespace

Reveal::Reveal(QObject* parent) : QObject(parent), m_workers(*this)
{
    theReveal = this;
}

Reveal::~Reveal()
{
    if (theReveal == this)
        theReveal = nullptr;
}

Reveal* Reveal::current()
{
    return theReveal;
}

void Reveal::show(const std::string& path)
{
    if (theReveal != nullptr)
        theReveal->askFileManager(path);
}

void Reveal::open(const std::string& path)
{
    if (theReveal != nullptr)
        theReveal->runOpener(reference(path), theReveal->reportOf(path));
}

void Reveal::openTrash()
{
    if (theReveal != nullptr)
        theReveal->runOpener(QStringLiteral("trash:///"),
                             [] { open(PathText::join(Trash::homeFolder(), "files")); });
}

void Reveal::askFileManager(const std::string& path)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    message << QStringList{reference(path)} << QString();
    call(message, this, [this, path] { askPortal(path); });
}

/// The portal takes an open folder. A worker opens it, as it may be on a slow network.
void Reveal::askPortal(const std::string& path)
{
    if (!QDBusConnection::sessionBus().isConnected()) {
        openFolder(path);
        return;
    }
    const auto open = [folder = std::string(PathText::parent(path))](const std::stop_token&) {
        Result<UniqueFd> opened = orlen::openFolder(folder);
        return std::make_shared<UniqueFd>(opened.ok() ? std::move(opened).value() : UniqueFd());
    };
    m_workers.start(open, [this, path](const std::shared_ptr<UniqueFd>& folder) {
        if (!folder->isOpen()) {
            openFolder(path);
            return;
        }
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.portal.Desktop"),
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.OpenURI"), QStringLiteral("OpenDirectory"));
        message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(folder->get())) << QVariantMap();
        call(message, this, [this, path] { openFolder(path); });
    });
}

void Reveal::openFolder(const std::string& path)
{
    runOpener(reference(std::string(PathText::parent(path))), reportOf(path));
}

void Reveal::runOpener(const QString& target, const Failure& failure)
{
    // No parent: destroying it would kill the started program, which now belongs to the user.
    auto* process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    connect(process, &QProcess::errorOccurred, this, [failure](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            failure();
    });
    connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
    connect(process, &QProcess::finished, this, [failure](int code, QProcess::ExitStatus status) {
        if (code != 0 && status == QProcess::NormalExit)
            failure();
    });
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    if (SessionBus::isMissing()) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QString::fromUtf8(SessionBus::kVariable));
        process->setProcessEnvironment(environment);
    }
    process->start(QStringLiteral("xdg-open"), {target});
}

Reveal::Failure Reveal::reportOf(const std::string& path)
{
    return [this, path] { Q_EMIT failed(DisplayText::line(path)); };
}

} // namespace orlen

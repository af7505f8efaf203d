#include "window/shell/Window.h"

#include "app/AppTexts.h"
#include "model/Words.h"
#include "platform/desktop/SessionBus.h"
#include "platform/files/LibraryFolders.h"
#include "platform/files/Places.h"
#include "platform/process/Interrupts.h"
#include "platform/process/OwnProgram.h"
#include "window/WindowTexts.h"
#include "window/apps/AppIconProvider.h"
#include "window/controls/SymbolProvider.h"
#include "window/lists/Remembered.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/AppModelElement.h"
#include "window/shell/DesktopPresence.h"
#include "window/shell/GuiStart.h"
#include "window/shell/Reveal.h"
#include "window/shell/RunningInstance.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSocketNotifier>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace orlen::Window {

namespace {

constexpr int kTextPixels = 14;
/// Exit status, as for commands.
constexpr int kRefused = 2;

bool isSet(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

/// Makes the end of the session and Ctrl-C close the program as closing the window does.
void quitOnInterrupt(Interrupts& interrupts, QObject* parent)
{
    auto* notifier = new QSocketNotifier(interrupts.descriptor(), QSocketNotifier::Read, parent);
    QObject::connect(notifier, &QSocketNotifier::activated, parent, [&interrupts] {
        (void)interrupts.take();
        QCoreApplication::quit();
    });
}

int show(const QDBusConnection& bus, RunningInstance& instance, Interrupts& interrupts)
{
    AppModel model({});
    QQmlApplicationEngine engine;
    QQuickWindow* window = load(engine, model);
    if (window == nullptr)
        return EXIT_FAILURE;
    quitOnInterrupt(interrupts, &engine);
    QObject::connect(&instance, &RunningInstance::activated, window,
                     [window](const LaunchToken& token) { DesktopPresence::present(*window, token); });
    // Well before everything is destroyed, so that running work can end in the meantime.
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &model, [&model] {
        model.results()->cancelScan();
        model.cleanUps()->cancelCleaning();
    });
    // Deferred until the window is up, as nothing here is needed before.
    std::optional<DesktopPresence> presence;
    QObject::connect(
        window, &QQuickWindow::frameSwapped, &engine, [&] { presence.emplace(bus, model, engine, *window); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return QGuiApplication::exec();
}

} // namespace

bool canOpen()
{
    return isSet("WAYLAND_DISPLAY") || isSet("DISPLAY") || isSet("QT_QPA_PLATFORM");
}

void prepare()
{
    QGuiApplication::setApplicationName(QStringLiteral("Orlen"));
    QGuiApplication::setOrganizationName(QStringLiteral("Orlen"));
    QGuiApplication::setApplicationVersion(QStringLiteral(ORLEN_VERSION));
    QGuiApplication::setDesktopFileName(QString::fromUtf8(OwnProgram::identifier().data()));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/Orlen/icon.svg")));
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(kTextPixels);
    QGuiApplication::setFont(font);
    QGuiApplication::setLayoutDirection(Words::isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    // For what the desktop names, such as types of files.
    QLocale::setDefault(QLocale(QString::fromStdString(Words::language())));
}

void prepareEngine(QQmlEngine& engine, AppModel& model)
{
    AppModelElement::setModel(&model);
    if (const auto megabytes = Remembered::largeThresholdMB())
        model.results()->setLargeThresholdMB(*megabytes);
    model.results()->setKeepRule(Remembered::keepRule());
    QObject::connect(model.results(), &Results::keepRuleChanged, &engine,
                     [&model] { Remembered::setKeepRule(model.results()->keepRule()); });
    engine.addImageProvider(QLatin1String(SymbolProvider::kName), new SymbolProvider);
    engine.addImageProvider(QLatin1String(AppIconProvider::kName), new AppIconProvider);
    engine.addImageProvider(QLatin1String(BadgeProvider::kName), new BadgeProvider);
    engine.addImageProvider(QLatin1String(Thumbnails::kName), new Thumbnails);
    new Reveal(&engine);
}

QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model)
{
    prepareEngine(engine, model);
    engine.load(QUrl(QStringLiteral("qrc:/Orlen/App/Main.qml")));
    return engine.rootObjects().isEmpty() ? nullptr
                                          : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
}

int run(int argc, char** argv)
{
    SessionBus::startNone();
    Interrupts interrupts;
    if (Places::current().isHomeSilent) {
        std::fprintf(stderr, "orlen: %s\n", shown(AppTexts::kSilentHome).c_str());
        return kRefused;
    }
    LibraryFolders::leaveOutSilent(Places::current());
    const LaunchToken token = LaunchToken::fromEnvironment();
    const auto application = GuiStart::makeApplication(argc, argv);
    prepare();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    RunningInstance instance(bus);
    switch (instance.claim(token)) {
    case RunningInstance::Claim::ours:
        return show(bus, instance, interrupts);
    case RunningInstance::Claim::raisedOther:
        return EXIT_SUCCESS;
    case RunningInstance::Claim::blocked:
        std::fprintf(stderr, "orlen: %s\n", shown(WindowTexts::kIsOpen).c_str());
        return EXIT_FAILURE;
    }
    return EXIT_FAILURE;
}

} // namespace orlen::Window

#include "Window.h"

#include "AppIconProvider.h"
#include "AppModelElement.h"
#include "SymbolProvider.h"
#include "platform/OwnProgram.h"

#include <QFont>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>

#include <cstdlib>
#include <string_view>

namespace orlen::Window {

namespace {

constexpr int kTextPixels = 14;

bool isSet(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
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
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(kTextPixels);
    QGuiApplication::setFont(font);
}

QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model)
{
    AppModelElement::setModel(&model);
    engine.addImageProvider(QLatin1String(SymbolProvider::kName), new SymbolProvider);
    engine.addImageProvider(QLatin1String(AppIconProvider::kName), new AppIconProvider);
    engine.addImageProvider(QLatin1String(BadgeProvider::kName), new BadgeProvider);
    engine.load(QUrl(QStringLiteral("qrc:/Orlen/App/Main.qml")));
    return engine.rootObjects().isEmpty() ? nullptr
                                          : qobject_cast<QQuickWindow*>(engine.rootObjects().first());
}

int run(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    prepare();
    AppModel model({});
    QQmlApplicationEngine engine;
    if (load(engine, model) == nullptr)
        return EXIT_FAILURE;
    return QGuiApplication::exec();
}

} // namespace orlen::Window

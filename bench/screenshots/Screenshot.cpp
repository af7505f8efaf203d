#include "AppModelElement.h"
#include "Appearance.h"
#include "SymbolProvider.h"
#include "Window.h"
#include "app/AppModel.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSettings>

#include <cstdio>

/// Draws one state of the window to a picture, from the home folder that HOME names.
namespace {

using namespace orlen;

constexpr int kSettleMilliseconds = 1500;
constexpr int kLongestScan = 60'000;

template <typename Condition>
void wait(int longest, Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < longest && !condition())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void addOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {"out", "Picture to write", "file"},
        {"screen", "Number of the screen, from 0", "number", "0"},
        {"theme", "light or dark", "name", "light"},
        {"size", "Width x height", "size", "1100x720"},
        {"text-scale", "Size of texts against the usual", "factor", "1"},
        {"scan", "Run a Smart Scan first"},
        {"finding", "Open the sheet of a finding after the scan", "id"},
        {"review", "Open the review sheet after the scan"},
        {"onboarding", "Show the onboarding"},
        {"click", "Press the left button there; may be given several times", "x,y"},
        {"pointer", "Leave the pointer there", "x,y"},
        {"type", "Type a text where the keyboard is and press Enter; may be given several times", "text"},
        {"settle", "Milliseconds to wait before the picture", "number", QString::number(kSettleMilliseconds)},
    });
    parser.addHelpOption();
}

void bringAbout(AppModel& model, const QCommandLineParser& options)
{
    wait(kLongestScan, [&] { return model.isBreakdownReady(); });
    if (options.isSet("scan") || options.isSet("finding") || options.isSet("review")) {
        model.startScan();
        wait(kLongestScan, [&] { return model.phase() != Phase::scanning; });
    }
    if (options.isSet("finding"))
        model.setSheet(FindingSheet{options.value("finding").toStdString()});
    if (options.isSet("review"))
        model.setSheet(PlanSheet{model.scanPlan()});
}

QPointF pointOf(const QString& text)
{
    const QStringList parts = text.split(',');
    return {parts.value(0).toDouble(), parts.value(1).toDouble()};
}

void sendMouse(QQuickWindow& window, QEvent::Type type, QPointF at, Qt::MouseButtons held)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, at, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

void type(QQuickWindow& window, const QString& text)
{
    QKeyEvent letters(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&window, &letters);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
}

void act(QQuickWindow& window, const QCommandLineParser& options)
{
    const int settle = options.value("settle").toInt();
    for (const QString& text : options.values("type")) {
        wait(settle, [] { return false; });
        type(window, text);
    }
    for (const QString& at : options.values("click")) {
        wait(settle, [] { return false; });
        sendMouse(window, QEvent::MouseMove, pointOf(at), Qt::NoButton);
        sendMouse(window, QEvent::MouseButtonPress, pointOf(at), Qt::LeftButton);
        sendMouse(window, QEvent::MouseButtonRelease, pointOf(at), Qt::NoButton);
    }
    wait(settle, [] { return false; });
    if (options.isSet("pointer"))
        sendMouse(window, QEvent::MouseMove, pointOf(options.value("pointer")), Qt::NoButton);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    Window::prepare();
    QCommandLineParser options;
    addOptions(options);
    options.process(application);
    Appearance::setScheme(options.value("theme") == "dark" ? Appearance::Scheme::dark
                                                           : Appearance::Scheme::light);
    Appearance::setTextScale(options.value("text-scale").toDouble());
    QSettings().setValue("onboarded", !options.isSet("onboarding"));

    AppModel model({});
    QQmlApplicationEngine engine;
    QQuickWindow* window = Window::load(engine, model);
    if (window == nullptr)
        return 1;
    const QStringList size = options.value("size").split('x');
    window->resize(size.value(0).toInt(), size.value(1).toInt());
    model.setRequestedScreen(static_cast<Screen>(options.value("screen").toInt()));
    bringAbout(model, options);
    act(*window, options);
    wait(options.value("settle").toInt(), [] { return false; });
    const bool isSaved = window->grabWindow().save(options.value("out"));
    if (!isSaved)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(options.value("out")));
    return isSaved ? 0 : 1;
}

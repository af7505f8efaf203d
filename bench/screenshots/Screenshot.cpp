#include "AppModelElement.h"
#include "Appearance.h"
#include "SymbolProvider.h"
#include "Window.h"
#include "app/AppModel.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSettings>

#include <cstdio>

/// Draws one state of the window to a picture, from the home folder that HOME names.
namespace {

using namespace orlen;

constexpr int kSettleMilliseconds = 1500;
constexpr int kKeyMilliseconds = 250;
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
        {"keys", "Press these keys before the picture, one after the other", "names"},
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

void press(QQuickWindow& window, const QString& name)
{
    const QKeyCombination key = QKeySequence::fromString(name)[0];
    const QString text = name.size() == 1 ? name : QString();
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
        QCoreApplication::sendEvent(&window, &event);
    }
    wait(kKeyMilliseconds, [] { return false; });
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
    wait(options.value("settle").toInt(), [] { return false; });
    for (const QString& name : options.value("keys").split(',', Qt::SkipEmptyParts))
        press(*window, name);
    const bool isSaved = window->grabWindow().save(options.value("out"));
    if (!isSaved)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(options.value("out")));
    return isSaved ? 0 : 1;
}

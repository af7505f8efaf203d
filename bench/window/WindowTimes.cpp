#include "app/AppModel.h"
#include "model/Words.h"
#include "window/shell/DesktopPresence.h"
#include "window/shell/RunningInstance.h"
#include "window/shell/Window.h"
#include "window/shell/WindowState.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <optional>
#include <utility>

/// Times of the window with the home folder that HOME names, in the software renderer: from the start of the
/// process to the first frame, memory when idle, and how long the main thread is ever busy at a stretch while
/// a scan runs.
namespace {

using namespace orlen;

constexpr const char* kStartedVariable = "ORLEN_BENCH_STARTED"; // milliseconds of the clock that never jumps
constexpr int kIdleMilliseconds = 3'000;
constexpr int kTickMilliseconds = 2;
constexpr int kLookMilliseconds = 20;
constexpr int kStepMilliseconds = 1'500;

double now()
{
    QElapsedTimer timer;
    timer.start();
    return static_cast<double>(timer.msecsSinceReference());
}

double residentMegabytes()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double kPage = 4096;
    return file.readAll().split(' ').value(1).toDouble() * kPage / 1e6;
}

/// Sleeps between events: a loop that spins would take the processor from the scan.
template <typename Condition>
void wait(int longest, Condition condition)
{
    QTimer wake;
    wake.start(kLookMilliseconds);
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < longest && !condition())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

/// Processor time, of this thread if nothing else is said: what others on a busy machine take does not count.
double busyMilliseconds(clockid_t clock = CLOCK_THREAD_CPUTIME_ID)
{
    timespec time{};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Longest time between two turns of the event loop, how much of such a time the thread worked, and longest
/// time that drawing one frame took.
struct Stalls {
    explicit Stalls(QQuickWindow& window)
    {
        QObject::connect(&m_tick, &QTimer::timeout, [this] {
            longestGap = std::max(longestGap, lap(m_sinceTick));
            const double before = std::exchange(m_busy, busyMilliseconds());
            longestWork = std::max(longestWork, m_busy - before);
        });
        QObject::connect(&window, &QQuickWindow::afterAnimating, &m_tick, [this] { m_sinceFrame.start(); });
        QObject::connect(&window, &QQuickWindow::frameSwapped, &m_tick, [this] {
            longestFrame = std::max(longestFrame, lap(m_sinceFrame));
            ++frames;
        });
        m_sinceTick.start();
        m_tick.start(kTickMilliseconds);
    }

    static double lap(QElapsedTimer& timer)
    {
        const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        timer.restart();
        return milliseconds;
    }

    double longestGap = 0;
    double longestWork = 0;
    double longestFrame = 0;
    int frames = 0;

private:
    QTimer m_tick;
    QElapsedTimer m_sinceTick;
    QElapsedTimer m_sinceFrame;
    double m_busy = busyMilliseconds();
};

void measureScan(AppModel& model, QQuickWindow& window)
{
    wait(60'000, [&] { return model.storage()->isBreakdownReady(); });
    Stalls stalls(window);
    QElapsedTimer timer;
    timer.start();
    model.results()->startScan();
    wait(120'000, [&] { return model.results()->phase() != Phase::scanning; });
    std::printf(
        "scan %lld ms, %d frames, longest frame %.1f ms; event loop: longest gap %.1f ms, longest work "
        "%.1f ms\n",
        static_cast<long long>(timer.elapsed()), stalls.frames, stalls.longestFrame, stalls.longestGap,
        stalls.longestWork);
}

/// Delegates are no children of what shows them, but they are its child items.
QQuickItem* itemNamed(QQuickItem* root, const QString& name)
{
    if (root->objectName() == name && root->isVisible())
        return root;
    for (QQuickItem* child : root->childItems()) {
        if (QQuickItem* found = itemNamed(child, name))
            return found;
    }
    return nullptr;
}

/// Longest work at a stretch that something starts, until everything has come to rest.
void measureStep(QQuickWindow& window, const char* name, const std::function<void()>& start)
{
    Stalls stalls(window);
    // What is done at once counts too.
    QTimer::singleShot(kTickMilliseconds, start);
    wait(kStepMilliseconds, [] { return false; });
    std::printf("  %s: longest work %.0f ms\n", name, stalls.longestWork);
}

/// Opens the list of a finding, filters, sorts and ticks it, and goes on to the review.
void measureList(AppModel& model, QQuickWindow& window, const QString& finding)
{
    WindowState& state = WindowState::of(model);
    const auto item = [&](const char* name) {
        auto* found = itemNamed(window.contentItem(), QString::fromLatin1(name));
        if (found == nullptr)
            std::fprintf(stderr, "there is no item %s\n", name);
        return found;
    };
    const auto press = [&](const char* name) {
        return [&item, name] {
            if (auto* button = item(name))
                QMetaObject::invokeMethod(button, "clicked");
        };
    };
    const auto filter = [&](const char* text) {
        return [&item, text] {
            if (auto* field = item("entryFilter"))
                field->setProperty("text", QString::fromLatin1(text));
        };
    };
    std::printf("list of %s\n", qPrintable(finding));
    measureStep(window, "open", [&] { state.setSheet(FindingSheet{finding.toStdString()}); });
    measureStep(window, "filter, first key", filter("7"));
    measureStep(window, "filter, second key", filter("71"));
    measureStep(window, "filter, none", filter(""));
    measureStep(window, "sort by name", press("entryFilter-1"));
    measureStep(window, "sort by date", press("entryFilter-2"));
    measureStep(window, "select all", press("selectAll"));
    measureStep(window, "select none", press("selectAll"));
    measureStep(window, "select all again", press("selectAll"));
    measureStep(window, "review", [&] { state.setSheet(PlanSheet{model.results()->scanPlan()}); });
    measureStep(window, "close", [&] { state.setSheet(std::nullopt); });
}

/// One start of the window, in this process.
int once(int argc, char** argv)
{
    const double started = qEnvironmentVariable(kStartedVariable).toDouble();
    QElapsedTimer sinceClosing;
    {
        const QGuiApplication application(argc, argv);
        Words::useInstalled();
        Window::prepare();
        QSettings().setValue("onboarded", true);
        const QDBusConnection bus = QDBusConnection::sessionBus();
        RunningInstance instance(bus);
        (void)instance.claim({});
        AppModel::Options options;
        options.images.program = ORLEN_RECOGNIZER;
        AppModel model(options);
        QQmlApplicationEngine engine;
        QQuickWindow* window = Window::load(engine, model);
        if (window == nullptr)
            return 1;
        window->resize(1100, 720);
        bool isDrawn = false;
        QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { isDrawn = true; });
        wait(10'000, [&] { return isDrawn; });
        std::printf("first frame %.0f ms, of which processor time %.0f ms\n", now() - started,
                    busyMilliseconds(CLOCK_PROCESS_CPUTIME_ID));
        const DesktopPresence presence(bus, model, engine, *window);
        const QStringList arguments = QCoreApplication::arguments();
        if (arguments.contains("--scan"))
            measureScan(model, *window);
        if (const qsizetype at = arguments.indexOf("--list"); at >= 0)
            measureList(model, *window, arguments.value(at + 1));
        wait(kIdleMilliseconds, [] { return false; });
        std::printf("resident %.1f MB\n", residentMegabytes());
        if (arguments.contains("--scan")) {
            model.results()->startScan();
            wait(300, [] { return false; });
            sinceClosing.start();
        }
    }
    if (sinceClosing.isValid())
        std::printf("ended in the middle of a scan within %lld ms\n",
                    static_cast<long long>(sinceClosing.elapsed()));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    if (qEnvironmentVariableIsSet(kStartedVariable))
        return once(argc, argv);
    const QCoreApplication application(argc, argv);
    QCommandLineParser options;
    options.addOptions({{"runs", "How often to start", "number", "10"},
                        {"scan", "Measure a scan as well"},
                        {"list", "Measure the list of this finding of the scan as well", "id"}});
    options.addHelpOption();
    options.process(application);
    for (int run = 0; run < options.value("runs").toInt(); ++run) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(kStartedVariable, QString::number(now(), 'f', 0));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
        process.waitForFinished(-1);
    }
    return 0;
}

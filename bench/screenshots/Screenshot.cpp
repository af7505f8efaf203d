#include "AppModelElement.h"
#include "Appearance.h"
#include "PhotoGroupsModel.h"
#include "SymbolProvider.h"
#include "Window.h"
#include "app/AppModel.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>

#include <cstdio>

/// Draws one state of the window to a picture, from the home folder that HOME names.
namespace {

using namespace orlen;

constexpr int kSettleMilliseconds = 1500;
constexpr int kLongestScan = 60'000;
constexpr int kKeyMilliseconds = 250;

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
        {"photos", "Show the pictures in this folder's folders, named as kinds, as photo findings", "folder"},
        {"keys", "Keys to press before the picture, such as \"Tab Tab Return\"", "names"},
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

/// Of similar photos "a-1.jpg", "a-2.jpg" the one whose name ends with "keep" stays.
Finding photoFinding(FindingKind kind, const QFileInfoList& files)
{
    std::vector<FileEntry> entries;
    for (const QFileInfo& file : files) {
        FileEntry entry{file.filePath().toStdString(), file.size() * 9};
        if (kind == FindingKind::photoDuplicates) {
            const QString keeper = file.baseName().section('-', 0, 0) + "-keep." + file.suffix();
            if (keeper == file.fileName())
                continue;
            addNote(entry, "Similar to " + keeper.toStdString() + " — keeping the sharpest");
        }
        entries.push_back(std::move(entry));
    }
    return Finding(kind, std::move(entries));
}

PhotoGroupsModel* photoGroupsBelow(QQuickItem* item)
{
    auto* found = item->findChild<PhotoGroupsModel*>(QString(), Qt::FindDirectChildrenOnly);
    const auto children = item->childItems();
    for (auto child = children.begin(); found == nullptr && child != children.end(); ++child)
        found = photoGroupsBelow(*child);
    return found;
}

void showPhotos(QQuickWindow& window, AppModel& model, const QString& folder)
{
    std::vector<Finding> findings;
    for (const QFileInfo& group : QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const auto kind = kindFromRaw(group.fileName().toStdString());
        const QFileInfoList files = QDir(group.filePath()).entryInfoList(QDir::Files, QDir::Name);
        if (kind && !files.isEmpty())
            findings.push_back(photoFinding(*kind, files));
        if (kind && files.size() > 2)
            model.setSelection({findings.back().items[0].path, findings.back().items[1].path});
    }
    if (PhotoGroupsModel* groups = photoGroupsBelow(window.contentItem()))
        groups->setFindings(findings);
}

void press(QWindow& window, const QString& keys)
{
    window.requestActivate();
    for (const QString& key : keys.split(' ', Qt::SkipEmptyParts)) {
        const QKeyCombination combination = QKeySequence::fromString(key)[0];
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, combination.key(), combination.keyboardModifiers());
            QCoreApplication::sendEvent(&window, &event);
        }
        wait(kKeyMilliseconds, [] { return false; });
    }
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
    if (options.isSet("photos"))
        showPhotos(*window, model, options.value("photos"));
    if (options.isSet("keys"))
        press(*window, options.value("keys"));
    wait(options.value("settle").toInt(), [] { return false; });
    const bool isSaved = window->grabWindow().save(options.value("out"));
    if (!isSaved)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(options.value("out")));
    return isSaved ? 0 : 1;
}

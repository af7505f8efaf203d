#include "app/AppModel.h"
#include "model/Words.h"
#include "platform/files/FileStatus.h"
#include "scan/ScanTexts.h"
#include "window/controls/SymbolProvider.h"
#include "window/photos/PhotoGroupsModel.h"
#include "window/preview/PictureReader.h"
#include "window/shell/AppModelElement.h"
#include "window/shell/Appearance.h"
#include "window/shell/Window.h"
#include "window/shell/WindowState.h"
#include "window/tray/Tray.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
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
        {"scanning", "Start a Smart Scan and do not wait for its end"},
        {"click", "Click the items with these object names, separated by commas", "names"},
        {"keys", "Press these keys, separated by commas", "names"},
        {"type", "Type this text where the keyboard is, and press Enter", "text"},
        {"open", "Open the panel with this object name", "name"},
        {"finding", "Open the sheet of a finding after the scan", "id"},
        {"review", "Open the review sheet after the scan"},
        {"clean", "Move the plan of the selection to the Trash after the scan"},
        {"onboarding", "Show the onboarding"},
        {"at-once", "Do not wait for the storage breakdown"},
        {"photos", "Show the pictures in this folder's folders, named as kinds, as photo findings", "folder"},
        {"still", "Without motion, as for a desktop that asks for none"},
        {"tray", "Picture the small window of the tray item"},
        {"settle", "Milliseconds to wait before the picture", "number", QString::number(kSettleMilliseconds)},
    });
    parser.addHelpOption();
}

void bringAbout(AppModel& model, const QCommandLineParser& options)
{
    wait(kLongestScan, [&] { return model.storage()->isBreakdownReady(); });
    if (options.isSet("scan") || options.isSet("finding") || options.isSet("review") ||
        options.isSet("clean")) {
        model.results()->startScan();
        wait(kLongestScan, [&] { return model.results()->phase() != Phase::scanning; });
    }
    if (options.isSet("scanning"))
        model.results()->startScan();
    if (options.isSet("finding"))
        WindowState::of(model).setSheet(FindingSheet{options.value("finding").toStdString()});
    if (options.isSet("review"))
        WindowState::of(model).setSheet(PlanSheet{model.results()->scanPlan()});
    if (options.isSet("clean"))
        model.cleanUps()->confirm(model.results()->scanPlan());
}

/// Delegates are no children of what shows them, but they are its child items.
QQuickItem* itemNamed(QQuickItem* root, const QString& name)
{
    if (root->objectName() == name)
        return root;
    for (QQuickItem* child : root->childItems()) {
        if (QQuickItem* found = itemNamed(child, name))
            return found;
    }
    return nullptr;
}

void click(QQuickWindow& window, const QString& name)
{
    wait(kSettleMilliseconds, [] { return false; });
    const QQuickItem* item = itemNamed(window.contentItem(), name);
    if (item == nullptr) {
        std::fprintf(stderr, "there is no item %s\n", qPrintable(name));
        return;
    }
    const QPointF place = item->mapToScene(item->boundingRect().center());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, window.mapToGlobal(place), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }
}

void press(QQuickWindow& window, const QString& name)
{
    const QKeyCombination combination = QKeySequence::fromString(name)[0];
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, combination.key(), combination.keyboardModifiers(),
                        name.size() == 1 ? name.toLower() : QString());
        QCoreApplication::sendEvent(&window, &event);
    }
}

void type(QQuickWindow& window, const QString& text)
{
    wait(kSettleMilliseconds, [] { return false; });
    QKeyEvent letters(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&window, &letters);
    press(window, QStringLiteral("Return"));
}

/// Of similar photos "a-1.jpg", "a-2.jpg" the one whose name ends with "keep" stays.
Finding photoFinding(FindingKind kind, const QFileInfoList& files)
{
    std::vector<FileEntry> entries;
    for (const QFileInfo& file : files) {
        FileEntry entry{file.filePath().toStdString(), file.size() * 9};
        entry.stamp = FileStamp::of(statusOf(entry.path).value());
        entry.modified = statusOf(entry.path).value().modified;
        if (kind == FindingKind::photoDuplicates) {
            const QString keeper = file.baseName().section('-', 0, 0) + "-keep." + file.suffix();
            if (keeper == file.fileName())
                continue;
            addNote(entry, Message::joined({{ScanTexts::kSimilar, {{"name", keeper.toStdString()}}},
                                            ScanTexts::kSofterShot},
                                           Several::Joint::facts));
            const std::string path = file.dir().filePath(keeper).toStdString();
            entry.kept = KeptFile{path, FileStamp::of(statusOf(path).value())};
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
            model.results()->setSelection({findings.back().items[0].path, findings.back().items[1].path});
    }
    if (PhotoGroupsModel* groups = photoGroupsBelow(window.contentItem()))
        groups->setFindings(findings);
}

/// The window that the picture is of.
QQuickWindow* pictured(QQuickWindow* window, Tray& tray, const QCommandLineParser& options)
{
    if (!options.isSet("tray"))
        return window;
    tray.togglePanel({});
    for (QWindow* other : QGuiApplication::topLevelWindows()) {
        if (other != window && other->isVisible())
            return qobject_cast<QQuickWindow*>(other);
    }
    return window;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    Words::useInstalled();
    Window::prepare();
    QCommandLineParser options;
    addOptions(options);
    options.process(application);
    Appearance::setScheme(options.value("theme") == "dark" ? Appearance::Scheme::dark
                                                           : Appearance::Scheme::light);
    Appearance::setTextScale(options.value("text-scale").toDouble());
    Appearance::setReducedMotion(options.isSet("still"));
    QSettings().setValue("onboarded", !options.isSet("onboarding"));

    PictureReader::setRecognizer(ORLEN_RECOGNIZER);
    AppModel::Options modelOptions;
    modelOptions.images.program = ORLEN_RECOGNIZER;
    AppModel model(modelOptions);
    QQmlApplicationEngine engine;
    QQuickWindow* window = Window::load(engine, model);
    if (window == nullptr)
        return 1;
    const QStringList size = options.value("size").split('x');
    window->resize(size.value(0).toInt(), size.value(1).toInt());
    WindowState::of(model).setRequestedScreen(static_cast<Screens::Screen>(options.value("screen").toInt()));
    if (!options.isSet("at-once"))
        bringAbout(model, options);
    if (options.isSet("photos"))
        showPhotos(*window, model, options.value("photos"));
    if (auto* panel = window->findChild<QObject*>(options.value("open")); options.isSet("open") && panel)
        QMetaObject::invokeMethod(panel, "open");
    for (const QString& name : options.value("click").split(',', Qt::SkipEmptyParts))
        click(*window, name);
    for (const QString& name : options.value("keys").split(',', Qt::SkipEmptyParts))
        press(*window, name);
    if (options.isSet("type"))
        type(*window, options.value("type"));
    Tray tray(QDBusConnection::sessionBus(), model, engine);
    window = pictured(window, tray, options);
    wait(options.value("settle").toInt(), [] { return false; });
    const bool isSaved = window->grabWindow().save(options.value("out"));
    if (!isSaved)
        std::fprintf(stderr, "cannot write %s\n", qPrintable(options.value("out")));
    return isSaved ? 0 : 1;
}

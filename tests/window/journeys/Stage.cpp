#include "journeys/Stage.h"

#include "clean/Persist.h"
#include "journeys/FocusShown.h"
#include "journeys/ShownTexts.h"
#include "support/TestBmp.h"
#include "window/AppsOnDisk.h"
#include "window/shell/Appearance.h"
#include "window/shell/Window.h"
#include "window/shell/WindowState.h"

#include <QAccessible>
#include <QBuffer>
#include <QDirIterator>
#include <QGuiApplication>
#include <QImage>
#include <QMimeDatabase>
#include <QQmlContext>
#include <QQuickWindow>
#include <QSettings>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <vector>

namespace orlen {

namespace {

constexpr std::int64_t kMegabyte = 1'048'576;
constexpr const char* kRecognizer = "recognizer";

/// One and the same picture in different sizes.
std::string squares(int width)
{
    const QImage image = QImage::fromData(QByteArray::fromStdString(testBmp(320, 240)));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.scaledToWidth(width, Qt::SmoothTransformation).save(&buffer, "bmp");
    return bytes.toStdString();
}

QQuickItem* rootOf(QObject* where)
{
    auto* window = qobject_cast<QQuickWindow*>(where);
    return window != nullptr ? window->contentItem() : qobject_cast<QQuickItem*>(where);
}

bool isSeen(const QQuickItem& item)
{
    return item.isVisible() && item.opacity() > 0;
}

/// The topmost first.
std::vector<QQuickItem*> seenChildren(const QQuickItem& item)
{
    std::vector<QQuickItem*> children;
    for (QQuickItem* child : item.childItems()) {
        if (isSeen(*child))
            children.push_back(child);
    }
    std::reverse(children.begin(), children.end());
    std::stable_sort(children.begin(), children.end(),
                     [](const QQuickItem* a, const QQuickItem* b) { return a->z() > b->z(); });
    return children;
}

/// The first that fits, of the item and all that can be seen in it.
QQuickItem* search(QQuickItem& item, const std::function<bool(QQuickItem&)>& fits)
{
    for (QQuickItem* child : seenChildren(item)) {
        if (QQuickItem* found = search(*child, fits))
            return found;
    }
    return fits(item) ? &item : nullptr;
}

/// What a screen reader is told of an item, null for nothing.
QAccessibleInterface* spokenOf(QQuickItem& item)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&item);
    const QAccessibleInterface* parent = spoken == nullptr ? nullptr : spoken->parent();
    // Items that are ignored keep their interface, but are no child of any other.
    return parent != nullptr && parent->indexOfChild(spoken) >= 0 ? spoken : nullptr;
}

bool isForUse(const QAccessibleInterface& spoken)
{
    switch (spoken.role()) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::RadioButton:
        return true;
    default:
        return false;
    }
}

bool isNameless(QQuickItem& item)
{
    const QAccessibleInterface* spoken = spokenOf(item);
    if (spoken == nullptr)
        return item.activeFocusOnTab() && item.isEnabled();
    return (item.activeFocusOnTab() || isForUse(*spoken)) && spoken->text(QAccessible::Name).isEmpty();
}

} // namespace

void Stage::applicationAvailable()
{
    Window::prepare();
    Appearance::setScheme(Appearance::Scheme::light);
    Appearance::setReducedMotion(true);
    Appearance::setTextScale(m_textScale);
    QAccessible::setActive(true);
}

void Stage::qmlEngineAvailable(QQmlEngine* engine)
{
    prepare(*engine);
}

void Stage::cleanupTestCase()
{
    m_model.reset();
}

void Stage::prepare(QQmlEngine& engine)
{
    m_model.reset();
    m_home.emplace();
    fillHome();
    // No file manager answers, and no program opens a folder.
    TempHome::setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    TempHome::setMode(m_home->file(m_home->outside("bin/xdg-open"), "#!/bin/sh\nexit 3\n"), 0755);
    TempHome::setVariable("PATH", m_home->outside("bin") + ":/usr/bin:/bin");
    TempHome::reloadPlaces();
    fillPast();
    QSettings().clear();
    AppModel::Options options;
    options.images.program = m_home->outside(kRecognizer);
    m_model = std::make_unique<AppModel>(options);
    WindowState::of(*m_model).setOverlayMinimum(std::chrono::milliseconds(50));
    Window::prepareEngine(engine, *m_model);
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.rootContext()->setContextProperty(QStringLiteral("stage"), this);
}

void Stage::fillHome() const
{
    // Stands for the reserve, which would be the largest thing in this small home.
    std::filesystem::resize_file(m_home->file(".local/share/Orlen/reserve"), 8'000'000);
    m_home->fileOfSize(".cache/spotify/Data/one", 3 * kMegabyte);
    m_home->fileOfSize(".cache/mesa_shader_cache/two", 2 * kMegabyte);
    m_home->fileOfSize(".cache/pip/http/three", 2 * kMegabyte);
    m_home->fileOfSize("Documents/report.txt", kMegabyte, 7);
    m_home->fileOfSize("Downloads/report (1).txt", kMegabyte, 7);
    for (const int width : {240, 200})
        m_home->file("Pictures/squares " + std::to_string(width) + ".bmp", squares(width));
    setRecognizing(true);
    m_home->fileOfSize("Videos/holidays/film.mkv", 4 * kMegabyte, 9);
    const std::string program = AppsOnDisk::image(*m_home, "Applications/Sketcher-2.1-x86_64.AppImage");
    AppsOnDisk::launcher(*m_home, "org.example.Sketcher", "Sketcher", program);
    m_home->fileOfSize(".config/org.example.Sketcher/settings", 8'192);
    m_home->fileOfSize(".cache/org.example.Sketcher/pictures", 4'096);
    // As many as fill the list, so that one lies below whatever is clicked in a sheet.
    for (const char* name : {"Alder", "Birch", "Cedar", "Dogwood", "Elder", "Fir"})
        m_home->file(std::string("Applications/") + name + "/AppRun");
    const TimePoint longAgo = *timeFromIso("2024-05-01T10:00:00Z");
    for (const auto& [folder, bytes] :
         {std::pair(".config/Barquux", 12'288), std::pair(".local/share/Barquux", 8'192)}) {
        TempHome::setTimes(m_home->fileOfSize(folder + std::string("/a"), bytes), longAgo, longAgo);
        TempHome::setTimes(m_home->path(folder), longAgo, longAgo);
    }
    m_home->file(m_home->outside("system/usr/bin/apt"));
    m_home->fileOfSize(m_home->outside("system/var/cache/apt/archives/editor.deb"), 2 * kMegabyte);
    m_home->file(".config/autostart/notes.desktop",
                 "[Desktop Entry]\nType=Application\nName=Quick Notes\nExec=/usr/bin/true --notes\n");
}

void Stage::fillPast() const
{
    constexpr std::int64_t kGigabyte = 1'000'000'000;
    std::vector<Snapshot> snapshots;
    std::vector<FolderReading> readings;
    for (const int hours : {1'000, 200, 30, 2}) {
        const TimePoint date = std::chrono::system_clock::now() - std::chrono::hours(hours);
        snapshots.push_back(
            {date, (100 + hours / 20) * kGigabyte, 500 * kGigabyte, {{"media", 1'000 - hours}}});
        readings.push_back({date,
                            kMegabyte,
                            {{m_home->path(".cache"), hours > 500 ? kMegabyte : kGigabyte},
                             {m_home->path("Videos"), (1'500 - hours) * kMegabyte}}});
    }
    (void)Persist::saveSnapshots(snapshots);
    (void)Persist::saveFolderReadings(readings);
}

bool Stage::exists(const QString& name) const
{
    return TempHome::exists(m_home->path(name.toStdString()));
}

bool Stage::isInTrash(const QString& name) const
{
    return TempHome::exists(m_home->path(".local/share/Trash/files/" + name.toStdString()));
}

void Stage::setRecognizing(bool recognizing) const
{
    const std::string commands = recognizing ? "exec '" ORLEN_RECOGNIZER "' \"$@\"" : "/bin/sleep 60";
    TempHome::setMode(m_home->file(m_home->outside(kRecognizer), "#!/bin/sh\n" + commands + "\n"), 0755);
}

QString Stage::content(const QString& name) const
{
    return QString::fromStdString(TempHome::content(m_home->path(name.toStdString())));
}

void Stage::write(const QString& name, const QString& content) const
{
    m_home->file(name.toStdString(), content.toStdString());
}

void Stage::link(const QString& name, const QString& target) const
{
    std::filesystem::remove(m_home->path(name.toStdString()));
    m_home->link(name.toStdString(), m_home->path(target.toStdString()));
}

void Stage::move(const QString& name, const QString& other) const
{
    QFile::rename(QString::fromStdString(m_home->path(name.toStdString())),
                  QString::fromStdString(m_home->path(other.toStdString())));
}

void Stage::remove(const QString& name) const
{
    std::filesystem::remove_all(m_home->path(name.toStdString()));
}

void Stage::writeTo(const QString& name)
{
    m_written.close();
    if (name.isEmpty())
        return;
    m_written.setFileName(QString::fromStdString(m_home->path(name.toStdString())));
    m_written.open(QIODevice::Append);
}

void Stage::makeOldDownloads() const
{
    const TimePoint old = std::chrono::system_clock::now() - std::chrono::days(90);
    for (const char* name : {"Downloads/old.txt", "Downloads/papers/paper.txt"})
        TempHome::setTimes(m_home->fileOfSize(name, kMegabyte, 7), old, old);
    TempHome::setTimes(m_home->path("Downloads/papers"), old, old);
}

void Stage::cleanUp(const QString& folder) const
{
    CleanPlan plan;
    plan.title = Message::verbatim("Many");
    plan.sections.push_back({"caches", {}, "internaldrive.fill", {}});
    for (const auto& file : std::filesystem::directory_iterator(m_home->path(folder.toStdString())))
        plan.sections.front().entries.push_back({file.path().string(), 4096});
    m_model->cleanUps()->confirm(plan);
}

void Stage::fill(FailureListModel* failures) const
{
    std::vector<CleanFailure> list;
    for (const int number : {1, 2, 3, 4, 5, 6, 7})
        list.push_back({m_home->path("Videos/film " + std::to_string(number)), FailureReason::inUse});
    list.push_back({m_home->path("Videos/gone"), FailureReason::missing});
    failures->setFailures(std::move(list));
}

QQuickItem* Stage::find(QObject* where, const QString& name) const
{
    QQuickItem* root = rootOf(where);
    if (root == nullptr)
        return nullptr;
    return search(*root, [&](const QQuickItem& item) {
        return item.objectName() == name && item.width() > 0 && item.height() > 0;
    });
}

QStringList Stage::nameless(QObject* window) const
{
    QStringList found;
    (void)search(*rootOf(window), [&](QQuickItem& item) {
        if (isNameless(item))
            found += QString::fromUtf8(item.metaObject()->className()) + QLatin1Char(' ') + item.objectName();
        return false;
    });
    return found;
}

QString Stage::focusFault(QObject* window) const
{
    return FocusShown::fault(*qobject_cast<QQuickWindow*>(window));
}

/// What comes from the disk and from other programs, not from the catalogue.
QStringList Stage::names() const
{
    QStringList names{"Orlen",      "AppImage", "Flatpak", "Snap", "Sketcher", "org.example.Sketcher",
                      "Quick Notes"};
    QDirIterator files(QString::fromStdString(m_home->outside("")),
                       QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    const QMimeDatabase types;
    const auto addType = [&](const QMimeType& type) {
        QString words = type.comment();
        names << words.replace(0, 1, words.left(1).toUpper());
    };
    addType(types.mimeTypeForName("inode/directory"));
    while (files.hasNext()) {
        files.next();
        names << files.fileName();
        addType(types.mimeTypeForFile(files.fileName(), QMimeDatabase::MatchExtension));
    }
    names.removeDuplicates();
    names.removeAll(QString());
    return names;
}

QStringList Stage::notLookedUp(QObject* window) const
{
    return ShownTexts::notLookedUp(*rootOf(window), names());
}

QStringList Stage::cut(QObject* window) const
{
    return ShownTexts::cut(*rootOf(window));
}

} // namespace orlen

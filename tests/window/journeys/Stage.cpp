#include "journeys/Stage.h"

#include "Appearance.h"
#include "Window.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQuickWindow>
#include <QSettings>

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace orlen {

namespace {

constexpr std::int64_t kMegabyte = 1024 * 1024;

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

/// `spoken` is what a screen reader gets of the item, null for nothing.
bool isUsable(const QQuickItem& item, const QAccessibleInterface* spoken)
{
    switch (spoken == nullptr ? QAccessible::NoRole : spoken->role()) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::Link:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::PageTab:
    case QAccessible::RadioButton:
        return true;
    default:
        return item.activeFocusOnTab();
    }
}

} // namespace

void Stage::applicationAvailable()
{
    Window::prepare();
    Appearance::setScheme(Appearance::Scheme::light);
    Appearance::setReducedMotion(true);
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
    TempHome::reloadPlaces();
    QSettings().clear();
    AppModel::Options options;
    options.overlayMinimum = std::chrono::milliseconds(50);
    m_model = std::make_unique<AppModel>(options);
    Window::prepareEngine(engine, *m_model);
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.rootContext()->setContextProperty(QStringLiteral("stage"), this);
}

void Stage::fillHome() const
{
    m_home->fileOfSize(".cache/spotify/Data/one", 3 * kMegabyte);
    m_home->fileOfSize(".cache/mesa_shader_cache/two", 2 * kMegabyte);
    m_home->fileOfSize(".cache/pip/http/three", 2 * kMegabyte);
    m_home->fileOfSize("Documents/report.pdf", kMegabyte, 7);
    m_home->fileOfSize("Downloads/report (1).pdf", kMegabyte, 7);
    m_home->fileOfSize("Videos/holidays/film.mkv", 4 * kMegabyte, 9);
    // An AppImage is known by these bytes, not by its name.
    m_home->file("Applications/Sketcher-2.1-x86_64.AppImage", std::string("\x7f"
                                                                          "ELF\x02\x01\x01\0AI\x02",
                                                                          11) +
                                                                  std::string(4096, 'x'));
    m_home->file(".config/sketcher/settings.ini", "[main]\n");
    m_home->file(".config/autostart/notes.desktop",
                 "[Desktop Entry]\nType=Application\nName=Quick Notes\nExec=/usr/bin/true --notes\n");
}

bool Stage::exists(const QString& name) const
{
    return TempHome::exists(m_home->path(name.toStdString()));
}

bool Stage::isInTrash(const QString& name) const
{
    return TempHome::exists(m_home->path(".local/share/Trash/files/" + name.toStdString()));
}

QString Stage::content(const QString& name) const
{
    return QString::fromStdString(TempHome::content(m_home->path(name.toStdString())));
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
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&item);
        const bool isSilent = spoken == nullptr || spoken->text(QAccessible::Name).isEmpty();
        if (isSilent && isUsable(item, spoken))
            found += QString::fromUtf8(item.metaObject()->className()) + QLatin1Char(' ') + item.objectName();
        return false;
    });
    return found;
}

} // namespace orlen

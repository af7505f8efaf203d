#include "journeys/Stage.h"

#include "Appearance.h"
#include "Window.h"

#include <QGuiApplication>
#include <QQmlContext>
#include <QSettings>

#include <chrono>

namespace orlen {

namespace {

constexpr std::int64_t kMegabyte = 1024 * 1024;

} // namespace

void Stage::applicationAvailable()
{
    Window::prepare();
    Appearance::setScheme(Appearance::Scheme::light);
    Appearance::setReducedMotion(true);
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

} // namespace orlen

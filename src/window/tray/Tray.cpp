#include "window/tray/Tray.h"

#include "window/controls/SymbolDrawing.h"

#include <QGuiApplication>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>

#include <algorithm>
#include <memory>

namespace orlen {

namespace {

/// Readable on a dark and a light bar, as there is no way to know which it is. Themed icons follow the bar.
constexpr QColor kPixmapColour(0x80, 0x88, 0x94);
constexpr int kPanelGap = 8;
constexpr int kClickMilliseconds = 250;

TrayPixmaps pixmaps()
{
    TrayPixmaps all;
    for (const int size : {16, 22, 24, 32, 48}) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        SymbolDrawing::draw(painter, QStringLiteral("internaldrive"), kPixmapColour, image.rect());
        painter.end();
        all.append(TrayPixmap::fromImage(image));
    }
    return all;
}

TrayItem::Look look()
{
    return {QStringLiteral("Orlen"), QStringLiteral("drive-harddisk-symbolic"), pixmaps(),
            TrayModel::openLabel(), TrayModel::quitLabel()};
}

/// Next to `place` and fully on its screen. Without a place, the corner where trays usually are.
QPoint corner(const QPoint& place, const QSize& size)
{
    const QScreen* screen = QGuiApplication::screenAt(place);
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry().adjusted(kPanelGap, kPanelGap, -kPanelGap, -kPanelGap);
    const int left = place.isNull() ? room.right() : place.x() - size.width() / 2;
    const int lowest = std::max(room.top(), room.bottom() + 1 - size.height());
    const int rightmost = std::max(room.left(), room.right() + 1 - size.width());
    return {std::clamp(left, room.left(), rightmost), std::clamp(place.y(), room.top(), lowest)};
}

} // namespace

Tray::Tray(const QDBusConnection& bus, AppModel& app, QQmlEngine& engine, QObject* parent)
    : QObject(parent), m_engine(engine), m_model(app), m_item(bus, look())
{
    const auto setTitle = [this] { m_item.setTitle(m_model.title()); };
    connect(&m_model, &TrayModel::changed, &m_item, setTitle);
    setTitle();
    connect(&m_item, &TrayItem::activated, this, &Tray::togglePanel);
    connect(&m_item, &TrayItem::openRequested, this, &Tray::openRequested);
    connect(&m_item, &TrayItem::quitRequested, this, &Tray::quitRequested);
}

Tray::~Tray()
{
    delete m_panel;
}

void Tray::togglePanel(const QPoint& place)
{
    if (!m_panel)
        m_panel = makePanel();
    if (!m_panel)
        return;
    // The click on the icon that is meant to close the panel also took its focus, which has already hidden
    // it.
    const bool wasJustHidden = m_sinceHidden.isValid() && m_sinceHidden.elapsed() < kClickMilliseconds;
    if (m_panel->isVisible())
        m_panel->hide();
    else if (!wasJustHidden)
        showPanel(place);
}

void Tray::showPanel(const QPoint& place)
{
    m_panel->setPosition(corner(place, m_panel->size()));
    m_panel->show();
    m_panel->raise();
    m_panel->requestActivate();
}

void Tray::hidePanel()
{
    if (m_panel)
        m_panel->hide();
}

QQuickWindow* Tray::makePanel()
{
    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/Orlen/App/TrayPanel.qml")));
    std::unique_ptr<QObject> made(component.create());
    auto* panel = qobject_cast<QQuickWindow*>(made.get());
    if (panel == nullptr) {
        qWarning("%s", qPrintable(component.errorString()));
        return nullptr;
    }
    connect(panel, SIGNAL(openRequested()), this, SIGNAL(openRequested()));
    connect(panel, SIGNAL(quitRequested()), this, SIGNAL(quitRequested()));
    connect(panel, &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            m_sinceHidden.start();
    });
    (void)made.release(); // the panel is now owned by this object
    return panel;
}

} // namespace orlen

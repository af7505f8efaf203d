#include "window/shell/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

#include <algorithm>

namespace orlen {

namespace {

const QString kSize = QStringLiteral("window/size");
const QString kPosition = QStringLiteral("window/position");
const QString kMaximized = QStringLiteral("window/maximized");

constexpr QSize kUsualSize(1100, 720);
constexpr QSize kLeastSize(800, 600);

/// The room on the screen that a place is on, or on the first one.
QRect roomFor(const QRect& place)
{
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? QRect(QPoint(), kUsualSize) : screen->availableGeometry();
}

/// Under Wayland the desktop alone places windows.
bool canPlace()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace

WindowPlace::WindowPlace(QObject* parent) : QObject(parent)
{
    const QSettings settings;
    const QSize size = settings.value(kSize).toSize();
    m_hasPosition = canPlace() && settings.contains(kPosition);
    m_place = QRect(m_hasPosition ? settings.value(kPosition).toPoint() : QPoint(),
                    size.isValid() ? size : kUsualSize);
    m_place = fitted(m_place, roomFor(m_place));
    m_isMaximized = settings.value(kMaximized, false).toBool();
}

WindowPlace::~WindowPlace()
{
    if (m_window == nullptr)
        return;
    QSettings settings;
    settings.setValue(kSize, m_place.size());
    settings.setValue(kMaximized, m_isMaximized);
    if (canPlace())
        settings.setValue(kPosition, m_place.topLeft());
}

QSize WindowPlace::minimum() const
{
    return kLeastSize.boundedTo(roomFor(m_place).size());
}

void WindowPlace::setWindow(QWindow* window)
{
    if (m_window == window || window == nullptr)
        return;
    m_window = window;
    if (m_hasPosition)
        m_window->setPosition(m_place.topLeft());
    connect(m_window, &QWindow::xChanged, this, &WindowPlace::follow);
    connect(m_window, &QWindow::yChanged, this, &WindowPlace::follow);
    connect(m_window, &QWindow::widthChanged, this, &WindowPlace::follow);
    connect(m_window, &QWindow::heightChanged, this, &WindowPlace::follow);
    connect(m_window, &QWindow::windowStateChanged, this, &WindowPlace::follow);
    Q_EMIT windowChanged();
}

void WindowPlace::follow()
{
    // A hidden or minimised window says nothing of where it will be wanted.
    if (!m_window->isVisible() || m_window->windowStates().testFlag(Qt::WindowMinimized))
        return;
    m_isMaximized = m_window->windowStates().testFlag(Qt::WindowMaximized);
    if (m_window->windowStates() == Qt::WindowNoState)
        m_place = m_window->geometry();
}

QRect WindowPlace::fitted(const QRect& wanted, const QRect& room)
{
    QRect place(wanted.topLeft(), wanted.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
    return place;
}

} // namespace orlen

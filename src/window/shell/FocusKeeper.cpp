#include "window/shell/FocusKeeper.h"

#include <QEvent>

#include <chrono>

namespace orlen {

namespace {

using namespace std::chrono_literals;

/// Longer than a button is off while something short is done.
constexpr auto kPatience = 200ms;

bool isInUse(const QQuickItem& item)
{
    return item.isEnabled() && item.isVisible();
}

/// Sheets and menus see to their keyboard themselves: at the end of a clean-up, Enter is for the sheet as
/// such.
bool isInPopup(const QQuickItem* item)
{
    while (item != nullptr && !item->inherits("QQuickOverlay"))
        item = item->parentItem();
    return item != nullptr;
}

/// The innermost item that has or would have the keyboard of what is in this one.
QQuickItem* wantedIn(QQuickItem* item)
{
    while (item->isFocusScope() && item->scopedFocusItem() != nullptr)
        item = item->scopedFocusItem();
    return item;
}

} // namespace

FocusKeeper::FocusKeeper(QObject* parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kPatience);
    connect(&m_timer, &QTimer::timeout, this, &FocusKeeper::giveOn);
}

void FocusKeeper::setWindow(QQuickWindow* window)
{
    if (m_window == window)
        return;
    m_window = window;
    if (m_window != nullptr) {
        m_window->installEventFilter(this);
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &FocusKeeper::follow);
    }
    Q_EMIT windowChanged();
}

bool FocusKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        m_isKeyed = true;
        giveOn();
    } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
        m_isKeyed = false;
    }
    return QObject::eventFilter(watched, event);
}

void FocusKeeper::follow()
{
    QQuickItem* item = m_window == nullptr ? nullptr : m_window->activeFocusItem();
    if (item != nullptr && item != m_window->contentItem() && wantedIn(item) == item &&
        (!item->isFocusScope() || item->activeFocusOnTab())) {
        m_last = item;
        m_hadOne = true;
    }
    // Under a pointer nothing is to move; the next key comes in time.
    if (m_isKeyed)
        m_timer.start();
}

/// What takes the keyboard instead; null if it is where it should be.
QQuickItem* FocusKeeper::successor() const
{
    QQuickItem* item = m_window == nullptr ? nullptr : m_window->activeFocusItem();
    if (item == nullptr || isInPopup(item))
        return nullptr;
    QQuickItem* wanted = wantedIn(item);
    if (wanted != item && isInUse(*wanted))
        return wanted;
    if (wanted == item && isInUse(*item)) {
        const bool isLost = m_hadOne && m_last.isNull() && item->isFocusScope() && !item->activeFocusOnTab();
        return isLost ? item->nextItemInFocusChain() : nullptr;
    }
    // The one before is nearer to what was done than the first of the page, unless it stands outside.
    QQuickItem* before = wanted->nextItemInFocusChain(false);
    return before != nullptr && item->isAncestorOf(before) ? before : wanted->nextItemInFocusChain();
}

void FocusKeeper::giveOn()
{
    m_timer.stop();
    QQuickItem* next = successor();
    if (next == nullptr || !isInUse(*next))
        return;
    m_hadOne = false;
    next->forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace orlen

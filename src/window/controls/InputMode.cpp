#include "window/controls/InputMode.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace orlen {

InputMode::InputMode(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool InputMode::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    // A shortcut takes its key before it becomes a press.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        setKeyed(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        setKeyed(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void InputMode::setKeyed(bool isKeyed)
{
    if (std::exchange(m_isKeyed, isKeyed) != isKeyed)
        Q_EMIT keyedChanged();
}

} // namespace orlen

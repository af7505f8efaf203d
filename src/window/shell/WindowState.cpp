#include "window/shell/WindowState.h"

#include "window/lists/DisplayText.h"

#include <QPointer>

#include <utility>

namespace orlen {

WindowState& WindowState::of(AppModel& app)
{
    auto* state = app.findChild<WindowState*>(QString(), Qt::FindDirectChildrenOnly);
    return state == nullptr ? *new WindowState(&app) : *state;
}

void WindowState::setSheet(std::optional<SheetKind> sheet)
{
    if (m_sheet == sheet)
        return;
    m_sheet = std::move(sheet);
    Q_EMIT sheetChanged();
}

void WindowState::say(const QString& text, const std::function<void()>& undo, std::chrono::milliseconds time)
{
    Q_EMIT said(text, undo, time);
}

CleanUps::Done WindowState::outcomeNotice()
{
    return [state = QPointer(this)](const CleanUps::Restoration& restoration) {
        if (state)
            state->say(DisplayText::text(restoration.message));
    };
}

void WindowState::unsay(const QString& text)
{
    Q_EMIT unsaid(text);
}

void WindowState::setRequestedScreen(std::optional<Screens::Screen> screen)
{
    if (std::exchange(m_requestedScreen, screen) != screen)
        Q_EMIT requestedScreenChanged();
}

} // namespace orlen

#include "window/shell/Notices.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/review/KeptApart.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// Between two notices, so that eyes and screen readers notice the change.
constexpr std::chrono::milliseconds kPause{300};
constexpr std::chrono::milliseconds kPerCharacter{75};
/// A button also takes time to reach.
constexpr int kButtonFactor = 2;

} // namespace

Notices::Notices(AppModel& app)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Notices::goOn);
    if (const Reveal* reveal = Reveal::current())
        connect(reveal, &Reveal::failed, this, [this](const QString& path) {
            add({DisplayText::text(Message(WindowTexts::kNoProgram, {{"path", path.toStdString()}})),
                 path,
                 {},
                 {}});
        });
    connect(&WindowState::of(app), &WindowState::said, this,
            [this](const QString& text, const std::function<void()>& undo, std::chrono::milliseconds time) {
                add({text, {}, undo, time});
            });
    connect(&WindowState::of(app), &WindowState::unsaid, this, &Notices::takeBack);
    connect(app.results(), &Results::keptApart, this, [&app] { KeptApart::say(app); });
    for (const Message& sentence : app.notices())
        say(DisplayText::text(sentence));
}

void Notices::say(const QString& text)
{
    add({text, {}, {}, {}});
}

bool Notices::isSame(const Notice& a, const Notice& b)
{
    return a.text == b.text && a.path == b.path;
}

void Notices::add(Notice notice)
{
    if (notice.text.isEmpty() || (!m_waiting.empty() && isSame(m_waiting.back(), notice)))
        return;
    if (isSame(notice, m_shown)) {
        m_shown = std::move(notice);
        letRead();
        return;
    }
    // Only the latest change can be undone, so that nobody undoes another one.
    if (notice.undo != nullptr) {
        std::erase_if(m_waiting, [](const Notice& waiting) { return waiting.undo != nullptr; });
        if (hasUndo())
            goOn();
    }
    m_waiting.push_back(std::move(notice));
    if (isLasting())
        giveWay();
    if (m_shown.text.isEmpty() && !m_timer.isActive())
        goOn();
}

/// Shows the others first, and what is left of the time afterwards.
void Notices::giveWay()
{
    if (m_timer.isActive())
        m_shown.time = m_timer.remainingTimeAsDuration() + std::chrono::milliseconds(1);
    if (m_shown.time > std::chrono::milliseconds(m_shortest))
        m_waiting.push_back(m_shown);
    goOn();
}

void Notices::takeBack(const QString& text)
{
    std::erase_if(m_waiting, [&](const Notice& notice) { return notice.text == text; });
    if (m_shown.text == text)
        dismiss();
}

void Notices::dismiss()
{
    if (!m_shown.text.isEmpty())
        goOn();
}

void Notices::goOn()
{
    if (m_shown.text.isEmpty()) {
        if (m_waiting.empty())
            return;
        m_shown = std::move(m_waiting.front());
        m_waiting.pop_front();
        letRead();
    } else {
        m_shown = {};
        m_timer.start(kPause);
    }
    Q_EMIT changed();
}

void Notices::setHeld(bool isHeld)
{
    if (m_isHeld == isHeld)
        return;
    m_isHeld = isHeld;
    Q_EMIT heldChanged();
    if (!m_shown.text.isEmpty())
        letRead();
}

void Notices::letRead()
{
    if (m_isHeld)
        m_timer.stop();
    else
        m_timer.start(readingTime());
}

std::chrono::milliseconds Notices::readingTime() const
{
    if (isLasting())
        return m_shown.time;
    const std::chrono::milliseconds shortest(m_shortest);
    const std::chrono::milliseconds wanted = kPerCharacter * m_shown.text.size();
    return std::max(shortest, wanted) * (hasPath() || hasUndo() ? kButtonFactor : 1);
}

void Notices::undo()
{
    if (!hasUndo())
        return;
    const std::function<void()> undo = m_shown.undo;
    goOn();
    undo();
}

void Notices::copyPath() const
{
    QGuiApplication::clipboard()->setText(m_shown.path);
}

void Notices::announce(QObject* item)
{
    QAccessibleEvent event(item, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace orlen

#include "window/shell/EndNotices.h"

#include "window/lists/DisplayText.h"

#include <iterator>
#include <utility>

namespace orlen {

EndNotices::EndNotices(AppModel& app, DesktopNotices& notices, std::function<bool()> isSeen, QObject* parent)
    : QObject(parent), m_app(app), m_notices(notices), m_isSeen(std::move(isSeen)),
      m_phase(app.results()->phase())
{
    connect(m_app.results(), &Results::phaseChanged, this, &EndNotices::followPhase);
    connect(m_app.cleanUps(), &CleanUps::cleaningFinished, this, &EndNotices::showCleaning);
}

void EndNotices::followPhase()
{
    const Phase before = std::exchange(m_phase, m_app.results()->phase());
    // A cancelled scan ends in another phase and needs no notice.
    if (before != Phase::scanning || m_phase != Phase::results)
        return;
    const std::int64_t safe = m_app.results()->safeBytes();
    show({QStringLiteral("Smart Scan finished"),
          safe > 0 ? QStringLiteral("You can safely free %1").arg(DisplayText::size(safe))
                   : QStringLiteral("Nothing is rated Safe right now")});
}

void EndNotices::showCleaning(const CleanRecord& record)
{
    const QString failed = QStringLiteral("%1 couldn't be moved").arg(DisplayText::number(record.failed));
    show({QStringLiteral("%1 moved to the Trash").arg(DisplayText::number(std::ssize(record.items))),
          record.failed == 0 ? QString() : failed});
}

void EndNotices::show(const DesktopNotices::Notice& notice)
{
    if (!m_isSeen())
        m_notices.show(notice);
}

} // namespace orlen

#include "window/shell/EndNotices.h"

#include "window/shell/WindowTexts.h"

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
    if (before == Phase::scanning && m_phase == Phase::results)
        show({WindowTexts::scanFinished(), WindowTexts::safelyFree(m_app.results()->safeBytes())});
}

void EndNotices::showCleaning(const CleanRecord& record)
{
    show({WindowTexts::moved(static_cast<int>(record.items.size())),
          WindowTexts::couldNotBeMoved(record.failed)});
}

void EndNotices::show(const DesktopNotices::Notice& notice)
{
    if (!m_isSeen())
        m_notices.show(notice);
}

} // namespace orlen

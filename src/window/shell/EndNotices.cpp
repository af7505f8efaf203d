#include "window/shell/EndNotices.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
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
    const Message outcome =
        safe > 0 ? Message(AppTexts::kSafelyFree, {{"size", Bytes{safe}}}) : Message(AppTexts::kNothingSafe);
    show({DisplayText::text(WindowTexts::kScanFinished), DisplayText::text(outcome)});
}

void EndNotices::showCleaning(const CleanRecord& record)
{
    show({DisplayText::counted(std::ssize(record.items), WindowTexts::kMoved),
          record.failed == 0 ? QString() : DisplayText::counted(record.failed, WindowTexts::kNotMoved)});
}

void EndNotices::show(const DesktopNotices::Notice& notice)
{
    if (!m_isSeen())
        m_notices.show(notice);
}

} // namespace orlen

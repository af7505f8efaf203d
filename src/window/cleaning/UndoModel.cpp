#include "window/cleaning/UndoModel.h"

#include "app/AppTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/Reveal.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kReturnDelay{400};

} // namespace

UndoModel::UndoModel(AppModel& app) : m_app(app), m_window(WindowState::of(app))
{
    m_return.setSingleShot(true);
    m_return.setInterval(kReturnDelay);
    connect(&m_return, &QTimer::timeout, this, [this] {
        m_isReturned = true;
        Q_EMIT changed();
    });
    const CleanUps* cleanUps = m_app.cleanUps();
    connect(cleanUps, &CleanUps::cleaningChanged, this, &UndoModel::followCleaning);
    connect(cleanUps, &CleanUps::historyChanged, this, &UndoModel::followHistory);
    connect(cleanUps, &CleanUps::restoringChanged, this, &UndoModel::followHistory);
    connect(cleanUps, &CleanUps::restoreProgressed, this, &UndoModel::followProgress);
    connect(cleanUps, &CleanUps::restored, this, &UndoModel::finish);
}

bool UndoModel::isAvailable() const
{
    if (!m_record || m_phase == Phase::running || !m_app.isWriter())
        return false;
    const CleanRecord* record = m_app.cleanUps()->recordOf(*m_record);
    return record != nullptr && !m_app.cleanUps()->isRestoring(*m_record) &&
           !std::ranges::all_of(record->items, &TrashedItem::restored);
}

double UndoModel::fraction() const
{
    return m_state.total <= 0 ? 0 : static_cast<double>(m_state.done) / m_state.total;
}

QString UndoModel::progressText() const
{
    if (m_state.total <= 0)
        return {};
    return DisplayText::progress(m_state.done, m_state.total);
}

QString UndoModel::current() const
{
    return DisplayText::path(m_state.current);
}

QString UndoModel::restoredText() const
{
    return DisplayText::counted(m_restored, AppTexts::kRestoredCount);
}

QString UndoModel::failedText() const
{
    const int failed = m_failures.rowCount();
    return failed == 0 ? QString() : DisplayText::counted(failed, WindowTexts::kNotRestored);
}

void UndoModel::undo()
{
    if (!isAvailable())
        return;
    withdraw();
    m_phase = Phase::running;
    m_state = {};
    m_failures.setFailures({});
    if (isDismissed() && !m_isReturned)
        m_return.start();
    m_app.cleanUps()->startRestore(*m_app.cleanUps()->recordOf(*m_record));
    Q_EMIT changed();
}

void UndoModel::stop()
{
    if (isRunning())
        m_app.cleanUps()->cancelRestore(*m_record);
}

void UndoModel::dismiss()
{
    if (isRunning())
        return;
    m_isReturned = false;
    if (isDismissed())
        Q_EMIT changed();
    else
        m_app.cleanUps()->dismissCleaning();
}

void UndoModel::openTrash()
{
    Reveal::openTrash();
}

void UndoModel::followCleaning()
{
    const auto& cleaning = m_app.cleanUps()->cleaning();
    if (!cleaning) {
        offer();
    } else if (!cleaning->finished) {
        withdraw();
        m_record.reset();
        m_phase = Phase::none;
        m_isReturned = false;
    } else {
        m_record = cleaning->record;
    }
    Q_EMIT changed();
}

/// It may have been put back elsewhere.
void UndoModel::followHistory()
{
    if (!isAvailable())
        withdraw();
    Q_EMIT changed();
}

void UndoModel::followProgress(const Uuid& record)
{
    if (!isRunning() || record != m_record)
        return;
    m_state = *m_app.cleanUps()->restoring(record);
    Q_EMIT changed();
}

void UndoModel::finish(const CleanUps::Restoration& restoration)
{
    if (!isRunning() || restoration.outcome.record.id != m_record)
        return;
    m_return.stop();
    m_phase = Phase::ended;
    m_state.isStopping = false;
    m_restored = restoration.outcome.restored;
    m_isRecorded = restoration.isRecorded;
    m_failures.setFailures(restoration.outcome.failures);
    if (isDismissed() && !m_isReturned) {
        const bool isDone = restoration.outcome.failed == 0 && restoration.isRecorded;
        if (isDone)
            m_window.say(DisplayText::text(restoration.message));
        m_isReturned = !isDone;
    }
    Q_EMIT changed();
}

void UndoModel::offer()
{
    const CleanRecord* record = m_record ? m_app.cleanUps()->recordOf(*m_record) : nullptr;
    if (record == nullptr || m_phase != Phase::none || !isAvailable())
        return;
    m_offer = DisplayText::counted(std::ssize(record->items), WindowTexts::kMoved);
    m_window.say(
        m_offer, [this] { undo(); }, m_window.undoTime());
}

void UndoModel::withdraw()
{
    if (!m_offer.isEmpty())
        m_window.unsay(std::exchange(m_offer, {}));
}

} // namespace orlen

#include "app/CleanUps.h"

#include "app/AppTexts.h"
#include "app/ExclusionList.h"
#include "app/Results.h"
#include "app/Storage.h"
#include "clean/History.h"
#include "model/PathSelection.h"
#include "platform/values/CheckedSum.h"
#include "tools/apps/UnitShutdown.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kReportInterval{66};

} // namespace

CleanUps::CleanUps(std::vector<CleanRecord> history, Access access, Results& results,
                   const ExclusionList& exclusions, Storage& storage, QObject* parent)
    : ModelPart(parent), m_access(access), m_results(results), m_exclusions(exclusions), m_storage(storage),
      m_history(std::move(history)), m_workers(*this)
{
}

CleanUps::~CleanUps()
{
    m_workers.finish();
    // Moved items must be recorded even if the window was closed in the meantime.
    for (const PendingCleanUp& pending : m_pending) {
        if (pending->has_value())
            (void)History::add(m_history, (*pending)->record);
    }
    for (const PendingRestore& pending : m_restores) {
        if (pending.outcome->has_value())
            (void)History::update(m_history, (*pending.outcome)->record);
    }
}

void CleanUps::checkWriter() const
{
    checkThread();
    if (m_access != Access::writer)
        fatalError("a clean-up was asked of an application model that cannot record it");
}

void CleanUps::confirm(const CleanPlan& plan)
{
    checkWriter();
    std::vector<FileEntry> entries = PathSelection::moving(plan);
    if (entries.empty())
        return;
    CleaningState state;
    state.total = static_cast<int>(entries.size());
    state.planTitle = plan.title;
    m_cleaning = std::move(state);
    Q_EMIT cleaningChanged();

    const int number = ++m_number;
    const auto pending = std::make_shared<std::optional<Cleaner::Cleaned>>();
    m_pending.push_back(pending);
    const auto stillOn = std::make_shared<std::vector<std::string>>();
    const auto show = [this, number](int done, int, const std::string& current) {
        showCleaning(number, done, current);
    };
    m_stop = m_workers.start(
        [entries = std::move(entries), title = plan.title.base(), progress = report(show), pending, stillOn,
         exclusions = m_exclusions.current(), sets = plan.sets](const std::stop_token& stop) {
            *stillOn = UnitShutdown::run(entries);
            *pending = Cleaner::run(entries, title, progress, stop, exclusions, sets);
            return PendingCleanUp(pending);
        },
        [this, number, stillOn](const PendingCleanUp& cleaned) {
            finishCleaning(number, cleaned, std::move(*stillOn));
        });
}

Cleaner::Progress CleanUps::report(Show show) const
{
    // Runs on the worker, which passes `show` on but never calls it.
    return [mainThread = m_workers.mainThread(), show = std::move(show),
            last = Clock::time_point()](int index, int total, const std::string& name) mutable {
        const auto now = Clock::now();
        if (index < total && now - last < kReportInterval)
            return;
        last = now;
        mainThread.post([show, index, total, name] { show(index, total, name); });
    };
}

void CleanUps::showCleaning(int number, int done, const std::string& current)
{
    if (!m_cleaning || number != m_number)
        return;
    m_cleaning->done = done;
    m_cleaning->current = current;
    Q_EMIT cleaningChanged();
}

void CleanUps::finishCleaning(int number, const PendingCleanUp& pending, std::vector<std::string> stillOn)
{
    const Cleaner::Cleaned cleaned = **pending;
    const CleanRecord& record = cleaned.record;
    std::erase(m_pending, pending);
    const bool isRecorded = keep(record);
    if (m_cleaning && number == m_number) {
        m_cleaning->finished = true;
        m_cleaning->record = record.items.empty() ? std::nullopt : std::optional(record.id);
        m_cleaning->freed = record.freed();
        m_cleaning->moved = static_cast<int>(record.items.size());
        m_cleaning->failed = record.failed;
        m_cleaning->failures = cleaned.failures;
        m_cleaning->refusal = cleaned.refusal;
        m_cleaning->isRecorded = isRecorded;
        m_cleaning->servicesStillOn = std::move(stillOn);
        Q_EMIT cleaningChanged();
    }
    m_storage.followMoves();
    m_results.updateTrash();
    Q_EMIT cleaningFinished(record);
}

bool CleanUps::keep(const CleanRecord& record)
{
    const bool isSaved = History::add(m_history, record).ok();
    if (record.items.empty())
        return true;
    Q_EMIT historyChanged();
    std::set<std::string> moved;
    for (const TrashedItem& item : record.items)
        moved.insert(item.original);
    // Entries inside a moved folder moved with it.
    PathSelection::addInside(moved, m_results.listed());
    m_results.removeFromFindings(moved);
    return isSaved;
}

void CleanUps::cancelCleaning()
{
    checkThread();
    m_stop.request_stop();
}

void CleanUps::dismissCleaning()
{
    checkThread();
    m_cleaning.reset();
    Q_EMIT cleaningChanged();
}

CleanUps::Restoration CleanUps::restore(const CleanRecord& record)
{
    checkWriter();
    return finishRestore(Cleaner::restore(record));
}

CleanUps::Restoration CleanUps::finishRestore(Cleaner::Restored outcome)
{
    std::set<std::string> back;
    if (const CleanRecord* before = recordOf(outcome.record.id)) {
        const auto& after = outcome.record.items;
        for (std::size_t item = 0; item < std::min(after.size(), before->items.size()); ++item) {
            if (after[item].restored && !before->items[item].restored)
                back.insert(after[item].original);
        }
    }
    noteFailures(outcome);
    const bool isRecorded = History::update(m_history, outcome.record).ok();
    Q_EMIT historyChanged();
    m_storage.followMoves();
    m_results.updateTrash();
    m_results.returnToFindings(back);
    Message message = AppTexts::restored(outcome.restored, outcome.failed);
    return {std::move(outcome), std::move(message), isRecorded};
}

void CleanUps::noteFailures(const Cleaner::Restored& outcome)
{
    const std::string id = outcome.record.id.text();
    for (const TrashedItem& item : outcome.record.items) {
        if (item.restored)
            m_restoreFailures.erase({id, item.original});
    }
    for (const CleanFailure& failure : outcome.failures)
        m_restoreFailures.insert_or_assign({id, failure.path}, failure.reason);
}

std::optional<FailureReason> CleanUps::restoreFailure(const Uuid& record, const std::string& original) const
{
    const auto found = m_restoreFailures.find({record.text(), original});
    return found == m_restoreFailures.end() ? std::nullopt : std::optional(found->second);
}

const CleanRecord* CleanUps::recordOf(const Uuid& id) const
{
    const auto found = std::ranges::find(m_history, id, &CleanRecord::id);
    return found == m_history.end() ? nullptr : &*found;
}

CleanUps::PendingRestore* CleanUps::pendingRestore(const Uuid& record)
{
    const auto found = std::ranges::find(m_restores, record, &PendingRestore::record);
    return found == m_restores.end() ? nullptr : &*found;
}

const RestoreState* CleanUps::restoring(const Uuid& record) const
{
    const auto found = std::ranges::find(m_restores, record, &PendingRestore::record);
    return found == m_restores.end() ? nullptr : &found->state;
}

bool CleanUps::startRestore(const CleanRecord& record, const Cleaner::Wanted& wanted, const Done& whenDone)
{
    checkWriter();
    if (isRestoring(record.id))
        return false;
    const auto outcome = std::make_shared<std::optional<Cleaner::Restored>>();
    m_restores.push_back({record.id, outcome, {}});
    const auto show = [this, id = record.id](int done, int total, const std::string& current) {
        showRestore(id, {total, done, current});
    };
    const std::stop_source stop = m_workers.start(
        [record, wanted, outcome, progress = report(show)](const std::stop_token& stopped) {
            *outcome = Cleaner::restore(record, stopped, progress, wanted);
            return 0;
        },
        [this, id = record.id, outcome, whenDone](int) {
            std::erase_if(m_restores, [&](const PendingRestore& pending) { return pending.record == id; });
            const Restoration restoration = finishRestore(**outcome);
            Q_EMIT restoringChanged();
            Q_EMIT restored(restoration);
            if (whenDone != nullptr)
                whenDone(restoration);
        });
    if (PendingRestore* pending = pendingRestore(record.id))
        pending->stop = stop;
    Q_EMIT restoringChanged();
    return true;
}

void CleanUps::showRestore(const Uuid& record, RestoreState state)
{
    PendingRestore* pending = pendingRestore(record);
    if (pending == nullptr)
        return;
    state.isStopping = pending->state.isStopping;
    pending->state = std::move(state);
    Q_EMIT restoreProgressed(record);
}

void CleanUps::cancelRestore(const Uuid& record)
{
    checkThread();
    PendingRestore* pending = pendingRestore(record);
    if (pending == nullptr)
        return;
    pending->state.isStopping = true;
    pending->stop.request_stop();
    Q_EMIT restoreProgressed(record);
}

} // namespace orlen

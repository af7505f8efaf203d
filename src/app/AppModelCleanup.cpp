#include "app/AppModel.h"

#include "clean/History.h"
#include "model/PathSelection.h"

#include <QTimer>

#include <algorithm>
#include <utility>

/// The clean-up half of the application model.
namespace orlen {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kReportInterval{66};

} // namespace

void AppModel::confirm(const CleanPlan& plan)
{
    checkWriter();
    std::vector<FileEntry> entries = PathSelection::moving(plan);
    // The plan may belong to the sheet that closes here.
    const std::string title = plan.title;
    setSheet(std::nullopt);
    if (entries.empty())
        return;
    CleaningState state;
    state.total = static_cast<int>(entries.size());
    state.planTitle = title;
    m_cleaning = std::move(state);
    Q_EMIT cleaningChanged();

    const int number = ++m_cleaningNumber;
    const auto pending = std::make_shared<std::optional<Cleaner::Cleaned>>();
    m_pending.push_back(pending);
    const auto started = Clock::now();
    m_cleaningStop = m_workers.start(
        [entries = std::move(entries), title, report = cleaningReport(number),
         pending](const std::stop_token& stop) {
            *pending = Cleaner::run(entries, title, report, stop);
            return PendingCleanUp(pending);
        },
        [this, number, started](const PendingCleanUp& cleaned) {
            const auto shown = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - started);
            if (shown >= m_options.overlayMinimum)
                finishCleaning(number, cleaned);
            else
                QTimer::singleShot(m_options.overlayMinimum - shown, this,
                                   [this, number, cleaned] { finishCleaning(number, cleaned); });
        });
}

Cleaner::Progress AppModel::cleaningReport(int number)
{
    // Runs on the worker, which hands `show` on and never calls it.
    const std::function<void(int, const std::string&)> show =
        [this, number](int done, const std::string& current) { showCleaning(number, done, current); };
    return [mainThread = m_workers.mainThread(), show,
            last = Clock::time_point()](int index, int total, const std::string& name) mutable {
        const auto now = Clock::now();
        if (index < total && now - last < kReportInterval)
            return;
        last = now;
        mainThread.post([show, index, name] { show(index, name); });
    };
}

void AppModel::showCleaning(int number, int done, const std::string& current)
{
    if (!m_cleaning || number != m_cleaningNumber)
        return;
    m_cleaning->done = done;
    m_cleaning->current = current;
    Q_EMIT cleaningChanged();
}

void AppModel::finishCleaning(int number, const PendingCleanUp& pending)
{
    const Cleaner::Cleaned cleaned = **pending;
    const CleanRecord& record = cleaned.record;
    std::erase(m_pending, pending);
    const bool isRecorded = keep(record);
    if (m_cleaning && number == m_cleaningNumber) {
        m_cleaning->finished = true;
        m_cleaning->freed = record.freed();
        m_cleaning->moved = static_cast<int>(record.items.size());
        m_cleaning->failed = record.failed;
        m_cleaning->failures = cleaned.failures;
        m_cleaning->refusal = cleaned.refusal;
        m_cleaning->isRecorded = isRecorded;
        Q_EMIT cleaningChanged();
    }
    updateVolume();
    if (m_options.startup == Startup::full)
        refreshBreakdown(Recording::none);
    Q_EMIT cleaningFinished(record);
}

bool AppModel::keep(const CleanRecord& record)
{
    const bool isSaved = History::add(m_history, record).ok();
    if (record.items.empty())
        return true;
    Q_EMIT historyChanged();
    std::set<std::string> moved;
    for (const TrashedItem& item : record.items)
        moved.insert(item.original);
    // What was listed inside a moved folder went along.
    PathSelection::addInside(moved, listed());
    removeFromFindings(moved);
    return isSaved;
}

void AppModel::cancelCleaning()
{
    checkThread();
    m_cleaningStop.request_stop();
}

void AppModel::dismissCleaning()
{
    checkThread();
    m_cleaning.reset();
    Q_EMIT cleaningChanged();
}

void AppModel::removeFromFindings(const std::set<std::string>& paths)
{
    checkThread();
    for (Finding& finding : m_findings)
        std::erase_if(finding.items, [&](const FileEntry& entry) { return paths.contains(entry.path); });
    std::erase_if(m_findings, [](const Finding& finding) { return finding.items.empty(); });
    Q_EMIT findingsChanged();
    std::set<std::string> selection = m_selection;
    std::erase_if(selection, [&](const std::string& path) { return paths.contains(path); });
    setSelection(std::move(selection));
}

} // namespace orlen

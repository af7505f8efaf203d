#include "scan/ScanProgress.h"

#include "model/FindingKind.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanTexts.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// The shown path changes only with every 48th item, so that it can be read.
constexpr std::int64_t kItemsPerPath = 48;
/// Before this the pace says little.
constexpr std::chrono::seconds kShortestPast{3};

} // namespace

Text label(StepKind step)
{
    switch (step) {
    case StepKind::cachesAndLogs:
        return ScanTexts::kCachesAndLogs;
    case StepKind::backups:
        return ScanTexts::kBackupsAndUpdates;
    case StepKind::developer:
        return ScanTexts::kDeveloperTools;
    case StepKind::packageCaches:
        return ScanTexts::kPackageCaches;
    case StepKind::trashAndMail:
        return ScanTexts::kTrashAndMail;
    case StepKind::languagePacks:
        return meta(FindingKind::languagePacks).title;
    case StepKind::downloads:
        return ScanTexts::kDownloads;
    case StepKind::largeAndOld:
        return ScanTexts::kLargeAndOldFiles;
    case StepKind::duplicates:
        return meta(FindingKind::duplicates).title;
    case StepKind::photos:
        return orlen::label(OrlenCategory::photos);
    }
    return {};
}

ScanProgress::ScanProgress()
{
    for (std::size_t at = 0; at < kScanSteps; ++at)
        m_steps[at].shown.kind = static_cast<StepKind>(at);
}

void ScanProgress::set(StepKind kind, StepState state)
{
    const auto now = Clock::now();
    const std::lock_guard lock(m_lock);
    Step& changing = step(kind);
    if (state == StepState::running)
        changing.started = now;
    else if (changing.shown.state == StepState::running)
        changing.shown.elapsed = now - changing.started;
    changing.shown.state = state;
}

void ScanProgress::tick(std::string_view path)
{
    tick(1, [&](std::int64_t) { return std::string(path); });
}

void ScanProgress::tick(std::int64_t items, const std::function<std::string(std::int64_t)>& path)
{
    std::unique_lock lock(m_lock);
    const std::int64_t before = m_files;
    m_files = checkedAdd(m_files, items);
    const std::int64_t shown = m_files / kItemsPerPath * kItemsPerPath;
    if (shown <= before)
        return;
    // The path is put together outside: the lock is held for a field only.
    lock.unlock();
    show(path(shown - before - 1));
}

void ScanProgress::show(std::string_view path)
{
    std::string text(path);
    const std::lock_guard lock(m_lock);
    m_current = std::move(text);
}

void ScanProgress::expect(StepKind kind, StepAmount amount)
{
    const auto now = Clock::now();
    const std::lock_guard lock(m_lock);
    Step& counting = step(kind);
    counting.amount = amount;
    counting.doneBefore = amount.done;
    counting.counted = now;
}

void ScanProgress::advance(StepKind kind, std::int64_t by)
{
    const std::lock_guard lock(m_lock);
    StepAmount& amount = step(kind).amount;
    amount.done += std::min(by, amount.all - amount.done);
}

StepAmount ScanProgress::amount(StepKind kind) const
{
    const std::lock_guard lock(m_lock);
    return step(kind).amount;
}

std::optional<std::chrono::duration<double>> ScanProgress::timeLeft(StepKind kind) const
{
    const auto now = Clock::now();
    const std::lock_guard lock(m_lock);
    const Step& counting = step(kind);
    const std::chrono::duration<double> past = now - counting.counted;
    const std::int64_t done = counting.amount.done - counting.doneBefore;
    const std::int64_t left = counting.amount.all - counting.amount.done;
    if (done <= 0 || left <= 0 || past < kShortestPast)
        return std::nullopt;
    return past / static_cast<double>(done) * static_cast<double>(left);
}

double ScanProgress::share() const
{
    const std::lock_guard lock(m_lock);
    double steps = 0;
    for (const Step& step : m_steps) {
        if (step.shown.state == StepState::done)
            steps += 1;
        else if (step.amount.all > 0)
            steps += static_cast<double>(step.amount.done) / static_cast<double>(step.amount.all);
    }
    return steps / static_cast<double>(kScanSteps);
}

std::int64_t ScanProgress::files() const
{
    const std::lock_guard lock(m_lock);
    return m_files;
}

std::string ScanProgress::current() const
{
    const std::lock_guard lock(m_lock);
    return m_current;
}

std::array<ScanStep, kScanSteps> ScanProgress::steps() const
{
    const auto now = Clock::now();
    const std::lock_guard lock(m_lock);
    std::array<ScanStep, kScanSteps> shown;
    for (std::size_t at = 0; at < kScanSteps; ++at) {
        shown[at] = m_steps[at].shown;
        if (shown[at].state == StepState::running)
            shown[at].elapsed = now - m_steps[at].started;
    }
    return shown;
}

} // namespace orlen

#include "scan/ScanProgress.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// The shown path changes only with every 48th item, so that it can be read.
constexpr std::int64_t kItemsPerPath = 48;

} // namespace

void ScanProgress::setSteps(const std::vector<std::string>& labels)
{
    std::vector<Step> steps;
    steps.reserve(labels.size());
    for (const std::string& label : labels)
        steps.push_back({{label, StepState::pending, {}}, {}});
    const std::lock_guard lock(m_lock);
    m_steps = std::move(steps);
}

void ScanProgress::set(std::string_view label, StepState state)
{
    const auto now = Clock::now();
    const std::lock_guard lock(m_lock);
    const auto step = std::find_if(m_steps.begin(), m_steps.end(),
                                   [&](const Step& candidate) { return candidate.shown.label == label; });
    if (step == m_steps.end())
        return;
    if (state == StepState::running)
        step->started = now;
    else if (step->shown.state == StepState::running)
        step->shown.elapsed = now - step->started;
    step->shown.state = state;
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

std::vector<ScanStep> ScanProgress::steps() const
{
    const auto now = Clock::now();
    const std::lock_guard lock(m_lock);
    std::vector<ScanStep> shown;
    for (const Step& step : m_steps) {
        shown.push_back(step.shown);
        if (step.shown.state == StepState::running)
            shown.back().elapsed = now - step.started;
    }
    return shown;
}

} // namespace orlen

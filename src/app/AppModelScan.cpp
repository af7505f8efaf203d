#include "app/AppModel.h"

#include "app/AppTexts.h"
#include "clean/Safety.h"
#include "insight/AskContext.h"
#include "model/Rater.h"
#include "platform/process/ThreadPriority.h"
#include "platform/process/Threads.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanEngine.h"

#include <algorithm>
#include <utility>

/// The scanning half of the application model.
namespace orlen {

namespace {

constexpr double kBytesPerMegabyte = 1'000'000;

bool comesBefore(const Finding& a, const Finding& b)
{
    const std::pair left(a.safeSize(), a.totalSize());
    const std::pair right(b.safeSize(), b.totalSize());
    return left > right;
}

std::vector<const FileEntry*> selectedIn(const Finding& finding, const std::set<std::string>& selection)
{
    std::vector<const FileEntry*> entries;
    for (const FileEntry& entry : finding.items) {
        if (selection.contains(entry.path))
            entries.push_back(&entry);
    }
    return entries;
}

} // namespace

struct AppModel::ScanResult {
    std::vector<Finding> findings;
    StorageBreakdown breakdown;
};

void AppModel::startScan()
{
    checkThread();
    if (m_phase == Phase::scanning)
        return;
    setFdaGranted(checkFDA());
    const ScanOptions options{checkedInteger(m_largeThresholdMB * kBytesPerMegabyte), m_options.images};
    const auto engine = std::make_shared<ScanEngine>(options);
    m_engine = engine;
    m_scanProgress = std::shared_ptr<const ScanProgress>(engine, &engine->progress());
    Q_EMIT scanProgressChanged();
    setPhase(Phase::scanning);
    m_workers.start([engine](const std::stop_token&) { return scanned(*engine); },
                    [this, engine](ScanResult result) { finishScan(engine, std::move(result)); });
}

AppModel::ScanResult AppModel::scanned(ScanEngine& engine)
{
    ThreadPriority::giveWay(); // before any other thread starts
    Safety::refresh();
    ScanResult result;
    const std::stop_token stop = engine.flag().token();
    const auto measure = [&result, stop] { result.breakdown = StorageBreakdown::compute(stop); };
    auto measuring = Threads::start("orlen-storage", [&](const std::stop_token&) { measure(); });
    std::vector<Finding> raw = engine.run();
    if (!stop.stop_requested())
        result.findings = Rater::rate(std::move(raw));
    if (measuring)
        measuring->join();
    else
        measure();
    return result;
}

void AppModel::finishScan(const std::shared_ptr<ScanEngine>& engine, ScanResult result)
{
    if (engine != m_engine)
        return;
    if (engine->flag().isCancelled()) {
        setPhase(Phase::idle);
        return;
    }
    std::stable_sort(result.findings.begin(), result.findings.end(), comesBefore);
    m_findings = std::move(result.findings);
    m_unreadable = {engine->unreadable().count(), engine->unreadable().paths()};
    Q_EMIT findingsChanged();
    setSelection(preselected(m_findings));
    m_breakdownStored = ++m_breakdownsStarted;
    setBreakdown(std::move(result.breakdown));
    m_lastScan = std::chrono::system_clock::now();
    Q_EMIT lastScanChanged();
    recordSnapshot();
    setPhase(Phase::results);
}

std::set<std::string> AppModel::preselected(const std::vector<Finding>& findings)
{
    std::set<std::string> paths;
    for (const Finding& finding : findings) {
        if (finding.rating != Rating::safe || !finding.cleanable)
            continue;
        for (const FileEntry& entry : finding.items) {
            if (finding.effectiveRating(entry) == Rating::safe)
                paths.insert(entry.path);
        }
    }
    // A folder would take along what is not to be chosen without a look.
    PathSelection::dropOpenFolders(paths, PathSelection::listedIn(findings));
    return paths;
}

void AppModel::cancelScan()
{
    checkThread();
    if (m_engine && m_phase == Phase::scanning)
        m_engine->flag().cancel();
}

void AppModel::resetToIdle()
{
    setPhase(Phase::idle);
}

void AppModel::showResults()
{
    if (m_phase == Phase::idle && !m_findings.empty())
        setPhase(Phase::results);
}

std::int64_t AppModel::totalFound() const
{
    std::int64_t sum = 0;
    for (const Finding& finding : m_findings) {
        if (finding.cleanable)
            sum = checkedAdd(sum, finding.totalSize());
    }
    return sum;
}

std::int64_t AppModel::safeBytes() const
{
    std::int64_t sum = 0;
    for (const Finding& finding : m_findings)
        sum = checkedAdd(sum, finding.safeSize());
    return sum;
}

std::vector<Finding> AppModel::photoFindings() const
{
    std::vector<Finding> photos;
    std::copy_if(m_findings.begin(), m_findings.end(), std::back_inserter(photos),
                 [](const Finding& finding) { return finding.category == OrlenCategory::photos; });
    return photos;
}

std::int64_t AppModel::selectedSize(const Finding& finding) const
{
    return PathSelection::sizeOf(selectedIn(finding, m_selection), listed());
}

PathSelection::Amount AppModel::selectedAmount() const
{
    std::vector<const FileEntry*> entries;
    for (const Finding& finding : m_findings) {
        if (finding.cleanable)
            std::ranges::copy(selectedIn(finding, m_selection), std::back_inserter(entries));
    }
    return PathSelection::amountOf(std::move(entries));
}

CleanPlan AppModel::scanPlan() const
{
    CleanPlan plan;
    plan.title = AppTexts::kScanPlanTitle;
    for (const Finding& finding : m_findings) {
        if (!finding.cleanable)
            continue;
        PlanSection section{std::string(finding.id()), finding.title, finding.symbol, {}, finding.rating};
        std::copy_if(finding.items.begin(), finding.items.end(), std::back_inserter(section.entries),
                     [this](const FileEntry& entry) {
                         return m_selection.contains(entry.path) && !Safety::isProtected(entry.path);
                     });
        if (!section.entries.empty())
            plan.sections.push_back(std::move(section));
    }
    return plan;
}

AskContext AppModel::askContext() const
{
    return {m_findings, m_breakdown, prediction()};
}

} // namespace orlen

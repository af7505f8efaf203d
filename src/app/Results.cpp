#include "app/Results.h"

#include "app/DiskAccess.h"
#include "app/ExclusionList.h"
#include "app/FindingLists.h"
#include "app/SmartScan.h"
#include "app/Storage.h"
#include "clean/Safety.h"
#include "platform/files/Places.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanEngine.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

constexpr double kBytesPerMegabyte = 1'000'000;

/// What a scan comes to, and what is kept by the rule it began with.
struct Ended {
    SmartScan::Outcome outcome;
    KeepRule rule;
    std::vector<KeptCopies::Chosen> kept;
};

} // namespace

Results::Results(Storage& storage, const ExclusionList& exclusions, ImageWorkers::Options images,
                 QObject* parent)
    : ModelPart(parent), m_storage(storage), m_exclusions(exclusions), m_images(std::move(images)),
      m_isFdaGranted(checkFDA()), m_scanProgress(std::make_shared<ScanProgress>()), m_workers(*this)
{
    connect(&exclusions, &ExclusionList::changed, this,
            [this] { change([this] { m_found.divide(m_exclusions.current()); }); });
}

Results::~Results()
{
    cancelScan();
}

bool Results::checkFDA()
{
    return DiskAccess::isGranted(Places::current());
}

void Results::refreshAccess()
{
    assign(m_isFdaGranted, checkFDA(), &Results::fdaGrantedChanged);
}

void Results::startScan()
{
    checkThread();
    if (m_phase == Phase::scanning)
        return;
    refreshAccess();
    const ScanOptions options{largeThreshold(), m_images};
    const auto engine = std::make_shared<ScanEngine>(options);
    m_engine = engine;
    m_scanProgress = std::shared_ptr<const ScanProgress>(engine, &engine->progress());
    Q_EMIT scanProgressChanged();
    setPhase(Phase::scanning);
    m_workers.start(
        [engine, rule = m_keepRule](const std::stop_token&) {
            SmartScan::Outcome outcome = SmartScan::run(*engine);
            KeptCopies::Entries inSets;
            if (rule != KeepRule())
                KeptCopies::addEntries(inSets, outcome.findings);
            std::vector<KeptCopies::Chosen> kept = KeptCopies::ofAll(rule, inSets);
            return Ended{std::move(outcome), rule, std::move(kept)};
        },
        [this, engine](Ended ended) {
            finishScan(engine, std::move(ended.outcome), std::move(ended.kept));
            if (ended.rule != m_keepRule)
                applyKeepRule();
        });
}

void Results::finishScan(const std::shared_ptr<ScanEngine>& engine, SmartScan::Outcome outcome,
                         std::vector<KeptCopies::Chosen> kept)
{
    if (engine != m_engine)
        return;
    if (engine->flag().isCancelled()) {
        setPhase(Phase::idle);
        return;
    }
    m_trashLook.drop();
    m_unreadable = {engine->unreadable().count(), engine->unreadable().paths()};
    m_photoCoverage = engine->photoCoverage();
    change([&] {
        m_found.replace(std::move(outcome.findings), m_exclusions.current());
        m_found.take(std::move(kept), m_exclusions.current());
    });
    m_storage.setBreakdown(std::move(outcome.breakdown));
    m_scanned = moment(std::chrono::system_clock::now());
    m_scanned->largeThreshold = engine->options().largeThreshold;
    m_lastScan = m_scanned->time;
    Q_EMIT lastScanChanged();
    m_storage.recordSnapshot();
    m_storage.folders().record(std::move(outcome.folders), *m_lastScan);
    setPhase(Phase::results);
}

void Results::cancelScan()
{
    checkThread();
    if (m_engine && m_phase == Phase::scanning)
        m_engine->flag().cancel();
}

void Results::resetToIdle()
{
    setPhase(Phase::idle);
}

void Results::showResults()
{
    if (m_phase == Phase::idle && !findings().empty())
        setPhase(Phase::results);
}

void Results::change(const std::function<void()>& change)
{
    checkThread();
    const std::set<std::string> before = selection();
    change();
    Q_EMIT findingsChanged();
    if (selection() != before)
        Q_EMIT selectionChanged();
}

void Results::setSelection(std::set<std::string> selection)
{
    checkThread();
    const std::set<std::string> before = this->selection();
    m_found.setSelection(std::move(selection));
    if (this->selection() != before)
        Q_EMIT selectionChanged();
}

void Results::select(std::span<const std::string> paths)
{
    checkThread();
    const std::size_t before = selection().size();
    const bool isKeptApart = m_found.select(paths);
    if (isKeptApart || selection().size() != before)
        Q_EMIT selectionChanged();
    if (isKeptApart)
        Q_EMIT keptApart();
}

void Results::deselect(std::span<const std::string> paths)
{
    checkThread();
    const std::size_t before = selection().size();
    m_found.deselect(paths);
    if (selection().size() != before)
        Q_EMIT selectionChanged();
}

bool Results::selectOnly(std::span<const std::string> paths)
{
    std::set<std::string> selection = FindingLists::tickable(findings(), paths);
    std::erase_if(selection, [](const std::string& path) { return Safety::isProtected(path); });
    PathSelection::dropOpenFolders(selection, listed());
    setSelection(std::move(selection));
    return !this->selection().empty();
}

void Results::selectSafe()
{
    std::set<std::string> selection = m_found.selection();
    selection.insert(m_found.safePaths().begin(), m_found.safePaths().end());
    setSelection(std::move(selection));
}

bool Results::isSafeSelected() const
{
    return std::ranges::includes(m_found.selection(), m_found.safePaths());
}

ScanMoment Results::moment(TimePoint now) const
{
    const StorageBreakdown& breakdown = m_storage.breakdown();
    return {now, breakdown.free, breakdown.total, largeThreshold()};
}

Freshness Results::freshness(TimePoint now) const
{
    return m_scanned ? orlen::freshness(*m_scanned, moment(now)) : Freshness::fresh;
}

std::int64_t Results::largeThreshold() const
{
    return checkedInteger(m_largeThresholdMB * kBytesPerMegabyte);
}

void Results::setLargeThresholdMB(double megabytes)
{
    assign(m_largeThresholdMB, megabytes, &Results::largeThresholdMBChanged);
}

void Results::setPhase(Phase phase)
{
    assign(m_phase, phase, &Results::phaseChanged);
}

void Results::removeFromFindings(const std::set<std::string>& paths)
{
    change([&] { m_found.remove(paths); });
}

void Results::returnToFindings(const std::set<std::string>& places)
{
    checkThread();
    MovedEntries moved = m_found.moved(places);
    if (moved.findings.empty())
        return;
    m_workers.start(
        [moved = std::move(moved), places](const std::stop_token&) mutable {
            moved.keepUnchanged(places);
            return std::move(moved);
        },
        [this](MovedEntries unchanged) {
            // Meanwhile another scan may have ended, or another restore been quicker.
            MovedEntries missing = m_found.release(std::move(unchanged));
            if (!missing.findings.empty())
                change([&] { m_found.takeBack(std::move(missing), m_exclusions.current()); });
        });
}

void Results::updateTrash()
{
    checkThread();
    if (!m_lastScan || !m_storage.isKeptUpToDate())
        return;
    m_workers.start(
        m_trashLook, [](const std::stop_token& stop) { return SmartScan::trash(stop); },
        [this](std::vector<Finding> trash) {
            change([&] { m_found.replaceTrash(std::move(trash), m_exclusions.current()); });
        });
}

void Results::setKeepRule(KeepRule rule)
{
    checkThread();
    if (m_keepRule == rule)
        return;
    m_keepRule = std::move(rule);
    Q_EMIT keepRuleChanged();
    applyKeepRule();
}

void Results::applyKeepRule()
{
    const KeptCopies::Entries before = m_found.entriesInSets();
    if (std::ranges::all_of(before, &std::vector<FileEntry>::empty))
        return;
    m_workers.start(
        m_keeping,
        [rule = m_keepRule, before](const std::stop_token& stop) {
            return KeptCopies::ofAll(rule, before, stop);
        },
        [this, before](std::vector<KeptCopies::Chosen> kept) {
            // Meanwhile some may have been moved, or found anew.
            if (before != m_found.entriesInSets())
                applyKeepRule();
            else
                change([&] { m_found.take(std::move(kept), m_exclusions.current()); });
        });
}

void Results::keepInstead(const std::string& path)
{
    checkThread();
    auto exchange = NewKeeper::of(findings(), path);
    if (!exchange)
        return;
    m_workers.start([wanted = *exchange](const std::stop_token&) { return NewKeeper::listed(wanted); },
                    [this, wanted = *exchange](const std::optional<FileEntry>& former) {
                        if (!former)
                            Q_EMIT keeperRefused();
                        // Meanwhile another scan may have ended, or another one been chosen.
                        else if (NewKeeper::of(findings(), wanted.chosen.path) == wanted)
                            change([&] { m_found.take(wanted, *former); });
                    });
}

} // namespace orlen

#include "app/Results.h"

#include "app/AppTexts.h"
#include "app/DiskAccess.h"
#include "app/ExclusionList.h"
#include "app/FindingLists.h"
#include "app/NewKeeper.h"
#include "app/Storage.h"
#include "clean/Safety.h"
#include "model/Rater.h"
#include "platform/files/Places.h"
#include "platform/process/ThreadPriority.h"
#include "platform/process/Threads.h"
#include "platform/values/CheckedSum.h"
#include "scan/FolderTotals.h"
#include "scan/ScanEngine.h"
#include "scan/locations/SourceReader.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

constexpr double kBytesPerMegabyte = 1'000'000;

/// The finding of what the Trash holds, none when it is empty.
std::vector<Finding> trashNow(const std::stop_token& stop)
{
    ThreadPriority::giveWay();
    ScanProgress progress;
    std::vector<FileEntry> entries = SourceReader(progress, stop).entries(FindingKind::trash);
    if (entries.empty())
        return {};
    return Rater::rate({Finding(FindingKind::trash, std::move(entries))});
}

} // namespace

struct Results::ScanResult {
    std::vector<Finding> findings;
    StorageBreakdown breakdown;
    FolderReading folders; ///< without its date
};

Results::Results(Storage& storage, const ExclusionList& exclusions, ImageWorkers::Options images,
                 QObject* parent)
    : ModelPart(parent), m_storage(storage), m_exclusions(exclusions), m_images(std::move(images)),
      m_isFdaGranted(checkFDA()), m_scanProgress(std::make_shared<ScanProgress>()), m_workers(*this)
{
    connect(&exclusions, &ExclusionList::changed, this, [this] { applyExclusions(everythingSelected()); });
    // Before anyone is notified of the new findings.
    connect(this, &Results::findingsChanged, this, [this] {
        m_listed.reset();
        m_safe.reset();
    });
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
    m_workers.start([engine](const std::stop_token&) { return scanned(*engine); },
                    [this, engine](ScanResult result) { finishScan(engine, std::move(result)); });
}

Results::ScanResult Results::scanned(ScanEngine& engine)
{
    ThreadPriority::giveWay(); // before any other thread starts
    Safety::refresh();
    ScanResult result;
    const std::stop_token stop = engine.flag().token();
    FolderTotals totals;
    const auto measure = [&] { result.breakdown = StorageBreakdown::compute(stop, totals); };
    auto measuring = Threads::start("orlen-storage", [&](const std::stop_token&) { measure(); });
    std::vector<Finding> raw = engine.run();
    if (!stop.stop_requested())
        result.findings = Rater::rate(std::move(raw));
    if (measuring)
        measuring->join();
    else
        measure();
    result.folders = FolderTotals::reading(engine.folderTotals(), totals);
    return result;
}

void Results::finishScan(const std::shared_ptr<ScanEngine>& engine, ScanResult result)
{
    if (engine != m_engine)
        return;
    if (engine->flag().isCancelled()) {
        setPhase(Phase::idle);
        return;
    }
    m_findings = std::move(result.findings);
    m_excluded.clear();
    m_moved = {};
    m_trashLook.drop();
    m_references.clear();
    m_unreadable = {engine->unreadable().count(), engine->unreadable().paths()};
    m_photoCoverage = engine->photoCoverage();
    applyExclusions(FindingLists::safePaths(m_findings));
    m_storage.setBreakdown(std::move(result.breakdown));
    m_scanned = moment(std::chrono::system_clock::now());
    m_scanned->largeThreshold = engine->options().largeThreshold;
    m_lastScan = m_scanned->time;
    Q_EMIT lastScanChanged();
    m_storage.recordSnapshot();
    m_storage.folders().record(std::move(result.folders), *m_lastScan);
    setPhase(Phase::results);
    if (m_keepRule != KeepRule())
        applyKeepRule();
}

std::set<std::string> Results::everythingSelected() const
{
    std::set<std::string> selection = m_selection;
    selection.insert(m_excludedSelection.begin(), m_excludedSelection.end());
    return selection;
}

void Results::applyExclusions(std::set<std::string> selection)
{
    FindingLists::giveBack(m_findings, std::exchange(m_excluded, {}));
    m_excluded = m_exclusions.current().takeFrom(m_findings);
    std::ranges::stable_sort(m_findings, FindingLists::comesBefore);
    Q_EMIT findingsChanged();

    m_excludedSelection.clear();
    for (const Finding& finding : m_excluded) {
        for (const FileEntry& entry : finding.items) {
            if (auto path = selection.extract(entry.path))
                m_excludedSelection.insert(std::move(path));
        }
    }
    // Something inside a folder may have been deselected while the folder was excluded.
    PathSelection::dropOpenFolders(selection, listed());
    setSelection(std::move(selection));
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
    if (m_phase == Phase::idle && !m_findings.empty())
        setPhase(Phase::results);
}

std::int64_t Results::totalFound() const
{
    std::int64_t sum = 0;
    for (const Finding& finding : m_findings) {
        if (finding.cleanable)
            sum = checkedAdd(sum, finding.totalSize());
    }
    return sum;
}

std::int64_t Results::safeBytes() const
{
    std::int64_t sum = 0;
    for (const Finding& finding : m_findings)
        sum = checkedAdd(sum, finding.safeSize());
    return sum;
}

std::vector<Finding> Results::photoFindings() const
{
    std::vector<Finding> photos;
    std::copy_if(m_findings.begin(), m_findings.end(), std::back_inserter(photos),
                 [](const Finding& finding) { return finding.category == OrlenCategory::photos; });
    return photos;
}

std::int64_t Results::selectedSize(const Finding& finding) const
{
    return PathSelection::sizeOf(FindingLists::selectedIn(finding, m_selection), listed());
}

PathSelection::Amount Results::selectedAmount() const
{
    std::vector<const FileEntry*> entries;
    for (const Finding& finding : m_findings) {
        if (finding.cleanable)
            std::ranges::copy(FindingLists::selectedIn(finding, m_selection), std::back_inserter(entries));
    }
    return PathSelection::amountOf(std::move(entries));
}

CleanPlan Results::scanPlan() const
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

void Results::setSelection(std::set<std::string> selection)
{
    PathSelection::addInside(selection, listed());
    assign(m_selection, std::move(selection), &Results::selectionChanged);
}

void Results::select(std::span<const std::string> paths)
{
    checkThread();
    const std::size_t before = m_selection.size();
    for (const std::string& path : paths)
        PathSelection::tick(m_selection, listed(), path);
    if (m_selection.size() != before)
        Q_EMIT selectionChanged();
}

void Results::deselect(std::span<const std::string> paths)
{
    checkThread();
    const std::size_t before = m_selection.size();
    for (const std::string& path : paths)
        PathSelection::untick(m_selection, listed(), path);
    if (m_selection.size() != before)
        Q_EMIT selectionChanged();
}

const std::set<std::string>& Results::safePaths() const
{
    if (!m_safe)
        m_safe = FindingLists::safePaths(m_findings);
    return *m_safe;
}

void Results::selectSafe()
{
    std::set<std::string> selection = m_selection;
    selection.insert(safePaths().begin(), safePaths().end());
    setSelection(std::move(selection));
}

bool Results::isSafeSelected() const
{
    return std::ranges::includes(m_selection, safePaths());
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

const PathTree& Results::listed() const
{
    if (!m_listed)
        m_listed = PathSelection::listedIn(m_findings);
    return *m_listed;
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
    checkThread();
    std::set<std::string> gone = paths;
    gone.merge(m_moved.take(m_findings, m_selection, paths));
    gone.merge(m_moved.take(m_excluded, m_excludedSelection, paths));
    const auto isGone = [&](const std::string& path) { return gone.contains(path); };
    std::erase_if(m_excludedSelection, isGone);
    std::set<std::string> selection = m_selection;
    std::erase_if(selection, isGone);
    for (Finding& finding : m_references)
        std::erase_if(finding.items,
                      [&](const FileEntry& entry) { return MovedEntries::isAbout(entry, paths); });
    std::erase_if(m_references, [](const Finding& finding) { return finding.items.empty(); });
    Q_EMIT findingsChanged();
    setSelection(std::move(selection));
}

void Results::returnToFindings(const std::set<std::string>& places)
{
    checkThread();
    MovedEntries found = m_moved.about(places);
    if (found.findings.empty())
        return;
    m_workers.start(
        [found = std::move(found), places](const std::stop_token&) mutable {
            found.keepUnchanged(places);
            return std::move(found);
        },
        [this](MovedEntries unchanged) {
            // Of another scan's results, nothing is missing; and another restore may have been quicker.
            MovedEntries missing = m_moved.release(std::move(unchanged));
            if (missing.findings.empty())
                return;
            FindingLists::giveBack(m_findings, std::move(missing.findings));
            missing.selection.merge(everythingSelected());
            applyExclusions(std::move(missing.selection));
        });
}

void Results::updateTrash()
{
    checkThread();
    if (!m_lastScan || !m_storage.isKeptUpToDate())
        return;
    const auto isTrash = [](const Finding& finding) { return finding.kind == FindingKind::trash; };
    m_workers.start(
        m_trashLook, [](const std::stop_token& stop) { return trashNow(stop); },
        [this, isTrash](std::vector<Finding> trash) {
            std::erase_if(m_findings, isTrash);
            std::erase_if(m_excluded, isTrash);
            FindingLists::giveBack(m_findings, std::move(trash));
            applyExclusions(everythingSelected());
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

std::vector<FileEntry> Results::copies() const
{
    std::vector<FileEntry> copies;
    for (const std::vector<Finding>* findings : {&m_findings, &m_excluded, &m_references}) {
        const auto found = std::ranges::find(*findings, FindingKind::duplicates, &Finding::kind);
        if (found != findings->end())
            std::ranges::copy(found->items, std::back_inserter(copies));
    }
    return copies;
}

void Results::applyKeepRule()
{
    std::vector<FileEntry> before = copies();
    if (before.empty())
        return;
    m_workers.start(
        m_keeping,
        [rule = m_keepRule, before](const std::stop_token& stop) {
            return KeptCopies::by(rule, before, stop);
        },
        [this, before](std::optional<KeptCopies::Chosen> chosen) {
            // Meanwhile some may have been moved, or found anew.
            if (before != copies())
                applyKeepRule();
            else if (chosen)
                takeChosen(std::move(*chosen));
        });
}

void Results::takeChosen(KeptCopies::Chosen chosen)
{
    const auto isDuplicates = [](const Finding& finding) { return finding.kind == FindingKind::duplicates; };
    std::vector<Finding> offered = FindingLists::duplicatesOf(std::move(chosen.copies));
    for (std::vector<Finding>* findings : {&m_findings, &m_excluded})
        std::erase_if(*findings, isDuplicates);
    std::ranges::move(offered, std::back_inserter(m_findings));
    std::set<std::string> selection = everythingSelected();
    for (const KeptCopies::Chosen::Change& change : chosen.changes) {
        if (selection.erase(change.kept) > 0 && !change.isTickedAlone)
            selection.insert(change.former);
    }
    for (const FileEntry& reference : chosen.references)
        selection.erase(reference.path);
    m_references = FindingLists::duplicatesOf(std::move(chosen.references));
    applyExclusions(std::move(selection));
}

void Results::keepInstead(const std::string& path)
{
    checkThread();
    auto exchange = NewKeeper::of(m_findings, path);
    if (!exchange)
        return;
    m_workers.start([wanted = *exchange](const std::stop_token&) { return NewKeeper::listed(wanted); },
                    [this, wanted = *exchange](const std::optional<FileEntry>& former) {
                        if (former)
                            this->exchange(wanted, *former);
                        else
                            Q_EMIT keeperRefused();
                    });
}

void Results::exchange(const NewKeeper::Exchange& exchange, const FileEntry& former)
{
    // Meanwhile another scan may have ended, or another one been chosen.
    if (NewKeeper::of(m_findings, exchange.chosen.path) != exchange)
        return;
    NewKeeper::apply(m_findings, exchange, former);
    NewKeeper::apply(m_excluded, exchange, former);
    NewKeeper::apply(m_moved.findings, exchange, former);
    std::set<std::string> selection = m_selection;
    if (selection.erase(exchange.chosen.path) > 0 && !former.isTickedAlone)
        selection.insert(former.path);
    std::ranges::stable_sort(m_findings, FindingLists::comesBefore);
    Q_EMIT findingsChanged();
    setSelection(std::move(selection));
}

} // namespace orlen

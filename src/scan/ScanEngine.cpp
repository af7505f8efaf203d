#include "scan/ScanEngine.h"

#include "platform/desktop/RecentDocuments.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "scan/LargeAndOld.h"
#include "scan/OtherDisk.h"
#include "scan/StepGroup.h"
#include "scan/duplicates/Duplicates.h"
#include "scan/locations/LocationScanners.h"
#include "scan/photos/PageGroups.h"
#include "scan/photos/PictureMemory.h"
#include "scan/walk/Walk.h"

#include <algorithm>
#include <chrono>
#include <iterator>

namespace orlen {

namespace {

using Clock = std::chrono::system_clock;
using Findings = std::vector<Finding>;

template <typename Routine>
Findings asStep(ScanProgress& progress, StepKind step, const Routine& routine)
{
    progress.set(step, StepState::running);
    Findings findings = routine();
    progress.set(step, StepState::done);
    return findings;
}

Findings findDuplicates(const Walk::Found& found, ScanProgress& progress, const std::stop_token& stop)
{
    Findings findings;
    findings.push_back(
        Duplicates::finding(Duplicates::find(Walk::duplicateInput(found), stop, {}, &progress)));
    return findings;
}

Findings findPhotos(const Walk::Found& found, const ScanOptions& options, ScanProgress& progress,
                    const ScanFlag& flag, PhotoCoverage& coverage)
{
    ImageWorkers workers(options.images);
    const auto recognize = [&](const std::string& path) { return workers.analyze(path, flag.token()); };
    PictureMemory memory;
    const PhotoAnalyzer analyzer(progress, flag, recognize, &memory,
                                 PageGroups::lookingThrough(workers, flag.token()));
    PhotoAnalyzer::Found photos = analyzer.run(found.images);
    coverage = photos.coverage;
    return std::move(photos.findings);
}

/// The steps that share one walk of the home folder.
Findings fileBased(ScanProgress& progress, const ScanFlag& flag, const ScanOptions& options,
                   const RecentDocuments& recent, UnreadableFolders& unreadable, FolderTotals& totals,
                   PhotoCoverage& coverage)
{
    const std::stop_token stop = flag.token();
    progress.set(StepKind::largeAndOld, StepState::running);
    Walk::Found found = Walk::home(progress, stop, {options.largeThreshold, &unreadable, &totals});

    StepGroup group;
    group.add("large", [&] {
        std::vector<Cand> cands = found.cands;
        cands.insert(cands.end(), found.largeInCaches.begin(), found.largeInCaches.end());
        Findings findings = largeAndOld(cands, options.largeThreshold, Clock::now(), recent, stop);
        progress.set(StepKind::largeAndOld, StepState::done);
        return findings;
    });
    group.add("duplicates", [&] {
        return asStep(progress, StepKind::duplicates, [&] { return findDuplicates(found, progress, stop); });
    });
    group.add("photos", [&] {
        return asStep(progress, StepKind::photos,
                      [&] { return findPhotos(found, options, progress, flag, coverage); });
    });
    Findings findings = group.collect();
    findings.emplace_back(FindingKind::caches, std::move(found.caches));
    noteOtherDisks(findings);
    return findings;
}

/// One finding per kind: what two steps found of the same kind is put together, at the place of the first.
Findings mergedByKind(Findings findings)
{
    Findings merged;
    for (Finding& finding : findings) {
        if (finding.items.empty())
            continue;
        const auto same = std::find_if(merged.begin(), merged.end(),
                                       [&](const Finding& other) { return other.kind == finding.kind; });
        if (same == merged.end()) {
            merged.push_back(std::move(finding));
            continue;
        }
        std::vector<FileEntry> items = std::move(same->items);
        std::move(finding.items.begin(), finding.items.end(), std::back_inserter(items));
        *same = Finding(finding.kind, std::move(items));
    }
    return merged;
}

} // namespace

std::vector<Finding> ScanEngine::run()
{
    const std::stop_token stop = m_flag.token();
    const LocationScanners scanners(m_progress, stop, &m_unreadable);
    const RecentDocuments recent = RecentDocuments::ofUser(Places::current());
    StepGroup group;
    const auto addLocations = [&](StepKind step, const auto& routine) {
        group.add("location", [this, step, routine] { return asStep(m_progress, step, routine); });
    };
    addLocations(StepKind::cachesAndLogs, [&] { return scanners.cachesAndLogs(); });
    addLocations(StepKind::backups, [&] { return scanners.backups(); });
    addLocations(StepKind::developer, [&] { return scanners.developer(); });
    addLocations(StepKind::packageCaches, [&] { return scanners.packageCaches(); });
    addLocations(StepKind::trashAndMail, [&] { return scanners.trashAndMail(); });
    addLocations(StepKind::languagePacks, [&] { return scanners.languagePacks(); });
    addLocations(StepKind::downloads, [&] { return scanners.downloads(Clock::now(), recent); });
    group.add("files", [&] {
        return fileBased(m_progress, m_flag, m_options, recent, m_unreadable, m_folderTotals,
                         m_photoCoverage);
    });
    std::vector<Finding> findings = mergedByKind(group.collect());
    for (const Reachability::LeftOut& mount : Reachability::leftOut()) {
        if (mount.reason == Reachability::LeftOut::Reason::silent)
            m_unreadable.add(Places::current().normalized(mount.point));
    }
    return findings;
}

} // namespace orlen

#pragma once

#include "app/FoundEntries.h"
#include "app/Freshness.h"
#include "app/ModelPart.h"
#include "app/Workers.h"
#include "model/CleanPlan.h"
#include "model/Finding.h"
#include "model/ModelState.h"
#include "model/PathSelection.h"
#include "platform/images/ImageWorkers.h"
#include "platform/values/Time.h"
#include "scan/duplicates/KeepRule.h"
#include "scan/photos/PhotoAnalyzer.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace orlen {

class ExclusionList;
class ScanEngine;
class ScanProgress;
class Storage;
namespace SmartScan {
struct Outcome;
}

/// Runs the Smart Scan and tells what the last one found, what is selected of it, and when either changes.
/// Main thread; whatever looks at the disk runs on a worker.
class Results : public ModelPart {
    Q_OBJECT
    Q_PROPERTY(double largeThresholdMB READ largeThresholdMB WRITE setLargeThresholdMB NOTIFY
                   largeThresholdMBChanged)
    Q_PROPERTY(bool fdaGranted READ isFdaGranted NOTIFY fdaGrantedChanged)

public:
    /// A scan passes its storage breakdown to `storage`. What `exclusions` lists is no result, and is one
    /// again when it is removed from that list. Both outlive this. `images` says how photos are analysed.
    Results(Storage& storage, const ExclusionList& exclusions, ImageWorkers::Options images,
            QObject* parent = nullptr);
    ~Results() override;

    [[nodiscard]] Phase phase() const { return m_phase; }
    /// Of the last scan, in display order: most Safe bytes first, then most bytes.
    [[nodiscard]] const std::vector<Finding>& findings() const { return m_found.findings(); }
    /// Paths of the entries selected for cleaning. With a folder, also the entries listed inside it, because
    /// they move with it.
    [[nodiscard]] const std::set<std::string>& selection() const { return m_found.selection(); }
    /// Decimal megabytes from which a file counts as large.
    [[nodiscard]] double largeThresholdMB() const { return m_largeThresholdMB; }
    /// The same in bytes. Stops the program if it does not fit.
    [[nodiscard]] std::int64_t largeThreshold() const;
    [[nodiscard]] bool isFdaGranted() const { return m_isFdaGranted; }
    /// Of the current or last scan; empty before the first.
    [[nodiscard]] const ScanProgress& scanProgress() const { return *m_scanProgress; }
    [[nodiscard]] const std::optional<TimePoint>& lastScan() const { return m_lastScan; }
    /// Whether the results still tell what there is; fresh before the first scan. Stops the program as
    /// `largeThreshold` does.
    [[nodiscard]] Freshness freshness(TimePoint now) const;
    struct Unreadable {
        std::int64_t count = 0;
        std::vector<std::string> paths; ///< in order, at most 1,000, valid UTF-8
    };
    /// The folders that the last scan could not read; changes with `findings`.
    [[nodiscard]] const Unreadable& unreadableFolders() const { return m_unreadable; }

    /// Leaves out kept files whose copies are among these.
    void setSelection(std::set<std::string> selection);
    /// Adds paths to the selection, or removes them and any selected folder that contains them. The cost
    /// depends only on the number of paths given. Emits `selectionChanged` at most once.
    void select(std::span<const std::string> paths);
    void deselect(std::span<const std::string> paths);
    /// Selects these and nothing else, less what may not be ticked for the user: what is no longer listed,
    /// rated Keep, only ticked alone, or protected. Whether anything is selected then.
    bool selectOnly(std::span<const std::string> paths);
    /// Adds everything Safe that can be cleaned to the selection.
    Q_INVOKABLE void selectSafe();
    /// Whether all of that is selected.
    [[nodiscard]] bool isSafeSelected() const;
    /// A value that is not finite, or does not fit into 64 bits as bytes, stops the program at the next scan.
    void setLargeThresholdMB(double megabytes);

    /// Whether the program may read protected folders.
    [[nodiscard]] static bool checkFDA();
    /// Checks disk access again: the user may have granted it in the meantime.
    Q_INVOKABLE void refreshAccess();

    /// Starts a Smart Scan unless one is running. The phase ends as `results`, or as `idle` with everything
    /// unchanged if the scan was cancelled.
    Q_INVOKABLE void startScan();
    /// Asks the scan to stop; ignored when none is running.
    Q_INVOKABLE void cancelScan();
    /// Leaves the results.
    Q_INVOKABLE void resetToIdle();
    /// Returns to the results of the last scan; ignored when there are none, or while a scan is running.
    Q_INVOKABLE void showResults();

    /// Bytes of all entries in the cleanable findings.
    [[nodiscard]] std::int64_t totalFound() const { return m_found.totalFound(); }
    /// Bytes of the entries rated Safe in the cleanable findings.
    [[nodiscard]] std::int64_t safeBytes() const { return m_found.safeBytes(); }
    /// The findings in the photos category.
    [[nodiscard]] std::vector<Finding> photoFindings() const { return m_found.photos(); }
    /// Bytes of the finding's selected entries; nested entries count once.
    [[nodiscard]] std::int64_t selectedSize(const Finding& finding) const
    {
        return m_found.selectedSize(finding);
    }
    /// What cleaning up the whole selection would move; each path counts once, even if several findings list
    /// it.
    [[nodiscard]] PathSelection::Amount selectedAmount() const { return m_found.selectedAmount(); }
    /// The selectable paths.
    [[nodiscard]] const PathTree& listed() const { return m_found.listed(); }
    /// The plan for the current selection: a section for each cleanable finding, without protected paths.
    [[nodiscard]] CleanPlan scanPlan() const { return m_found.plan(); }
    /// Removes entries from the results and the selection, and with them those whose kept file is removed.
    void removeFromFindings(const std::set<std::string>& paths);
    /// Lists entries again that were removed since the last scan, after something was put back at these
    /// places; selected as they were. Looks at each on a worker first: what is no longer what the scan saw
    /// stays away.
    void returnToFindings(const std::set<std::string>& places);
    /// Looks on a worker at what the Trash holds now. Ignored before the first scan, and unless the storage
    /// is kept up to date.
    void updateTrash();
    /// Keeps this one of a set of similar photos, and lists the one that was kept instead, selected if this
    /// one was. Looks at both on a worker first; emits `keeperRefused` if they have changed since the scan.
    /// Ignored for a path that no set lists.
    void keepInstead(const std::string& path);
    /// Which file of each set of duplicates or similar photos is kept.
    [[nodiscard]] const KeepRule& keepRule() const { return m_keepRule; }
    /// Has the sets follow the rule as `KeptCopies` says, now and after later scans. Copies in its reference
    /// folders are not offered while it holds. The findings change once a worker has looked at the files.
    void setKeepRule(KeepRule rule);
    /// How many of all photos were looked at, now or in earlier scans; changes with `findings`.
    [[nodiscard]] const PhotoCoverage& photoCoverage() const { return m_photoCoverage; }

Q_SIGNALS:
    void phaseChanged();
    void findingsChanged();
    void selectionChanged();
    void largeThresholdMBChanged();
    void fdaGrantedChanged();
    void scanProgressChanged();
    void lastScanChanged();
    void keeperRefused();
    /// `select` has deselected others, as a kept file is not selected together with its copies.
    void keptApart();
    void keepRuleChanged();

private:
    void setPhase(Phase phase);
    [[nodiscard]] ScanMoment moment(TimePoint now) const;
    void finishScan(const std::shared_ptr<ScanEngine>& engine, SmartScan::Outcome outcome,
                    std::vector<KeptCopies::Chosen> kept);
    void applyKeepRule();
    /// Makes a change of what was found, and emits what came of it.
    void change(const std::function<void()>& change);

    Storage& m_storage;
    const ExclusionList& m_exclusions;
    const ImageWorkers::Options m_images;
    Phase m_phase = Phase::idle;
    FoundEntries m_found;
    Latest m_trashLook;
    KeepRule m_keepRule;
    Latest m_keeping;
    double m_largeThresholdMB = 500;
    bool m_isFdaGranted = false;
    std::shared_ptr<ScanEngine> m_engine;
    std::shared_ptr<const ScanProgress> m_scanProgress;
    std::optional<TimePoint> m_lastScan;
    std::optional<ScanMoment> m_scanned;
    Unreadable m_unreadable;
    PhotoCoverage m_photoCoverage;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

#pragma once

#include "app/ModelPart.h"
#include "app/Workers.h"
#include "model/Finding.h"
#include "model/ModelState.h"
#include "model/PathSelection.h"
#include "platform/images/ImageWorkers.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace orlen {

class ScanEngine;
class ScanProgress;
class Storage;
struct StorageBreakdown;

/// The Smart Scan and what the last one found, with what the user has selected of it. Main thread; the scan
/// runs on a worker.
class Results : public ModelPart {
    Q_OBJECT
    Q_PROPERTY(double largeThresholdMB READ largeThresholdMB WRITE setLargeThresholdMB NOTIFY
                   largeThresholdMBChanged)
    Q_PROPERTY(bool fdaGranted READ isFdaGranted NOTIFY fdaGrantedChanged)

public:
    /// A scan hands its storage breakdown to `storage`, which outlives this; `images` is who looks at photos.
    Results(Storage& storage, ImageWorkers::Options images, QObject* parent = nullptr);
    ~Results() override;

    [[nodiscard]] Phase phase() const { return m_phase; }
    /// Of the last scan, in display order: most Safe bytes first, then most bytes.
    [[nodiscard]] const std::vector<Finding>& findings() const { return m_findings; }
    /// Paths of the entries that the user has chosen to clean: with a folder also what the findings list
    /// inside it, as that goes along.
    [[nodiscard]] const std::set<std::string>& selection() const { return m_selection; }
    /// Decimal megabytes from which a file counts as large.
    [[nodiscard]] double largeThresholdMB() const { return m_largeThresholdMB; }
    [[nodiscard]] bool isFdaGranted() const { return m_isFdaGranted; }
    /// Of the current or last scan; an empty one before the first.
    [[nodiscard]] const ScanProgress& scanProgress() const { return *m_scanProgress; }
    [[nodiscard]] const std::optional<TimePoint>& lastScan() const { return m_lastScan; }
    struct Unreadable {
        std::int64_t count = 0;
        std::vector<std::string> paths; ///< in order, at most 1,000, valid UTF-8
    };
    /// The folders that the last scan wanted to look into and could not; changes with `findings`.
    [[nodiscard]] const Unreadable& unreadableFolders() const { return m_unreadable; }

    void setSelection(std::set<std::string> selection);
    /// Adds paths to the selection, or takes them out together with the folders that would take them along,
    /// at the cost of those paths alone. One `selectionChanged` tells of all of them, and none when nothing
    /// changes.
    void select(std::span<const std::string> paths);
    void deselect(std::span<const std::string> paths);
    /// A value that is not finite, or too large in bytes for 64 bits, stops the program at the next scan.
    void setLargeThresholdMB(double megabytes);

    /// Whether the program may read protected folders.
    [[nodiscard]] static bool checkFDA();
    /// Probes the disk access again: the user may have granted it meanwhile.
    Q_INVOKABLE void refreshAccess();

    /// Starts a Smart Scan unless one is running. The phase turns to `results` at its end, or back to `idle`
    /// with everything as it was before when it was cancelled.
    Q_INVOKABLE void startScan();
    /// Asks the scan to end soon; ignored when none is running.
    Q_INVOKABLE void cancelScan();
    /// Leaves the results.
    Q_INVOKABLE void resetToIdle();
    /// Returns to the results of the last scan; ignored when there are none, or while a scan is running.
    Q_INVOKABLE void showResults();

    /// Bytes of all entries of the cleanable findings.
    [[nodiscard]] std::int64_t totalFound() const;
    /// Bytes of the entries rated Safe in the cleanable findings.
    [[nodiscard]] std::int64_t safeBytes() const;
    /// The findings of the category of photos.
    [[nodiscard]] std::vector<Finding> photoFindings() const;
    /// Bytes of the finding's selected entries; what lies in another one of them counts once.
    [[nodiscard]] std::int64_t selectedSize(const Finding& finding) const;
    /// What a clean-up of the whole selection would move: each path once, in however many findings it is.
    [[nodiscard]] PathSelection::Amount selectedAmount() const;
    /// The paths that can be selected.
    [[nodiscard]] const PathTree& listed() const;
    /// The plan of the current selection: one section for each cleanable finding, without protected paths.
    [[nodiscard]] CleanPlan scanPlan() const;
    /// Takes entries out of the results and the selection.
    void removeFromFindings(const std::set<std::string>& paths);

Q_SIGNALS:
    void phaseChanged();
    void findingsChanged();
    void selectionChanged();
    void largeThresholdMBChanged();
    void fdaGrantedChanged();
    void scanProgressChanged();
    void lastScanChanged();

private:
    struct ScanResult;

    void setPhase(Phase phase);
    [[nodiscard]] static ScanResult scanned(ScanEngine& engine);
    void finishScan(const std::shared_ptr<ScanEngine>& engine, ScanResult result);

    Storage& m_storage;
    const ImageWorkers::Options m_images;
    Phase m_phase = Phase::idle;
    std::vector<Finding> m_findings;
    mutable std::optional<PathTree> m_listed; ///< of these findings; made when first needed
    std::set<std::string> m_selection;
    double m_largeThresholdMB = 500;
    bool m_isFdaGranted = false;
    std::shared_ptr<ScanEngine> m_engine;
    std::shared_ptr<const ScanProgress> m_scanProgress;
    std::optional<TimePoint> m_lastScan;
    Unreadable m_unreadable;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

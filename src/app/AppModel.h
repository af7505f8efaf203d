#pragma once

#include "app/Screen.h"
#include "app/Workers.h"
#include "clean/CleanRecord.h"
#include "clean/Cleaner.h"
#include "clean/Snapshot.h"
#include "insight/Predictor.h"
#include "model/Finding.h"
#include "model/ModelState.h"
#include "model/PathSelection.h"
#include "platform/files/FolderLock.h"
#include "platform/images/ImageWorkers.h"
#include "platform/values/Time.h"
#include "scan/StorageBreakdown.h"

#include <QObject>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

struct AskContext;
class ScanEngine;
class ScanProgress;

/// The one state of the program: the results of the last Smart Scan, the selection, a clean-up in progress,
/// the history, the snapshots and the storage breakdown. The window and the command line are both views of
/// it.
///
/// Belongs to the main thread, as everything here does, and needs its event loop: work that blocks runs on
/// workers and its results arrive by signals. Destroying the model cancels what is in progress and waits for
/// it; a clean-up or a restore finishes the item in hand and is recorded.
class AppModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool breakdownReady READ isBreakdownReady NOTIFY breakdownChanged)
    Q_PROPERTY(double largeThresholdMB READ largeThresholdMB WRITE setLargeThresholdMB NOTIFY
                   largeThresholdMBChanged)
    Q_PROPERTY(bool fdaGranted READ isFdaGranted NOTIFY fdaGrantedChanged)
    Q_PROPERTY(bool writer READ isWriter CONSTANT)

public:
    enum class Startup {
        full,      ///< for a window: also measures, records a stale snapshot, and keeps free space up to date
        filesOnly, ///< for one command: loads the two files and probes the disk access
    };
    enum class Access {
        writer, ///< saves history and snapshots, if no other process does
        reader, ///< never saves
    };
    enum class Recording { none, ifStale };

    struct Options {
        Startup startup = Startup::full;
        Access access = Access::writer;
        /// A clean-up is shown at least so long, so that a short one can be seen.
        std::chrono::milliseconds overlayMinimum{1800};
        ImageWorkers::Options images; ///< who looks at the photos
    };

    explicit AppModel(const Options& options, QObject* parent = nullptr);
    ~AppModel() override;

    /// Empty until the first computation has finished.
    [[nodiscard]] const StorageBreakdown& breakdown() const { return m_breakdown; }
    [[nodiscard]] bool isBreakdownReady() const { return m_isBreakdownReady; }
    [[nodiscard]] Phase phase() const { return m_phase; }
    /// Of the last scan, in display order: most Safe bytes first, then most bytes.
    [[nodiscard]] const std::vector<Finding>& findings() const { return m_findings; }
    /// Paths of the entries that the user has chosen to clean: with a folder also what the findings list
    /// inside it, as that goes along.
    [[nodiscard]] const std::set<std::string>& selection() const { return m_selection; }
    [[nodiscard]] const std::optional<SheetKind>& sheet() const { return m_sheet; }
    /// Nothing while no clean-up is shown.
    [[nodiscard]] const std::optional<CleaningState>& cleaning() const { return m_cleaning; }
    /// Newest first.
    [[nodiscard]] const std::vector<CleanRecord>& history() const { return m_history; }
    /// Oldest first, at most 400.
    [[nodiscard]] const std::vector<Snapshot>& snapshots() const { return m_snapshots; }
    /// What the user should know of the program's own files since the start, one sentence each; mostly none.
    [[nodiscard]] const std::vector<std::string>& notices() const { return m_notices; }
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
    /// A screen that the main window is asked to show.
    [[nodiscard]] std::optional<Screen> requestedScreen() const { return m_requestedScreen; }
    /// Whether this model saves: it was asked to, and no other process holds the data folder.
    [[nodiscard]] bool isWriter() const { return m_isWriter; }

    void setSelection(std::set<std::string> selection);
    /// Adds paths to the selection, or takes them out together with the folders that would take them along,
    /// at the cost of those paths alone. One `selectionChanged` tells of all of them, and none when nothing
    /// changes.
    void select(std::span<const std::string> paths);
    void deselect(std::span<const std::string> paths);
    void setSheet(std::optional<SheetKind> sheet);
    void setRequestedScreen(std::optional<Screen> screen);
    /// A value that is not finite, or too large in bytes for 64 bits, stops the program at the next scan.
    void setLargeThresholdMB(double megabytes);

    /// Whether the program may read protected folders.
    [[nodiscard]] static bool checkFDA();
    /// Whether a snapshot is due: there is none, or the newest is more than 12 hours old.
    [[nodiscard]] static bool isStale(std::span<const Snapshot> snapshots, TimePoint now);

    /// Measures the storage breakdown anew; a snapshot is recorded after it when one is due and asked for.
    void refreshBreakdown(Recording recording);
    /// Appends a snapshot of the current breakdown in place of one of the past hour, drops the oldest beyond
    /// 400, and saves the list.
    void recordSnapshot();

    /// Starts a Smart Scan unless one is running. The phase turns to `results` at its end, or back to `idle`
    /// with everything as it was before when it was cancelled.
    Q_INVOKABLE void startScan();
    /// Asks the scan to end soon; ignored when none is running.
    Q_INVOKABLE void cancelScan();
    /// Leaves the results.
    Q_INVOKABLE void resetToIdle();
    /// Returns to the results of the last scan; ignored when there are none, or while a scan is running.
    Q_INVOKABLE void showResults();
    /// Probes the disk access again: the user may have granted it meanwhile.
    Q_INVOKABLE void refreshAccess();

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
    /// The growth forecast from the snapshots.
    [[nodiscard]] Prediction prediction() const;
    /// What a question about the storage is answered from.
    [[nodiscard]] AskContext askContext() const;

    /// Moves all entries of the plan to the Trash; closes the sheet. Nothing more happens when it holds none.
    /// Only for a writer.
    void confirm(const CleanPlan& plan);
    /// Lets the clean-up finish the item in hand and end; ignored when none is running.
    Q_INVOKABLE void cancelCleaning();
    /// Closes the display of a clean-up.
    Q_INVOKABLE void dismissCleaning();
    /// Takes entries out of the results and the selection.
    void removeFromFindings(const std::set<std::string>& paths);

    struct Restoration {
        Cleaner::Restored outcome;
        std::string message;    ///< one line for the user
        bool isRecorded = true; ///< false: the history could not be saved; the next start does it
    };
    /// Puts a past clean-up back before it returns: blocks on the disk, so not for a window. Only for a
    /// writer, and not for a record that is being restored.
    Restoration restore(const CleanRecord& record);
    /// Starts to put a past clean-up back; `restored` follows. False, and nothing happens, while the same
    /// record is being restored. Only for a writer.
    bool startRestore(const CleanRecord& record);
    /// Whether `startRestore` is at work on the record.
    [[nodiscard]] bool isRestoring(const Uuid& record) const;

Q_SIGNALS:
    void breakdownChanged();
    void phaseChanged();
    void findingsChanged();
    void selectionChanged();
    void sheetChanged();
    void cleaningChanged();
    void historyChanged();
    void snapshotsChanged();
    void largeThresholdMBChanged();
    void fdaGrantedChanged();
    void scanProgressChanged();
    void lastScanChanged();
    void requestedScreenChanged();
    /// A clean-up has ended. The record is in the history only when it holds an item.
    void cleaningFinished(const orlen::CleanRecord& record);
    /// Which records are being restored.
    void restoringChanged();
    /// What was begun by `startRestore` has ended.
    void restored(const orlen::AppModel::Restoration& restoration);

private:
    struct ScanResult;
    /// Of one clean-up, shared with its worker: nothing until the worker has ended.
    using PendingCleanUp = std::shared_ptr<std::optional<Cleaner::Cleaned>>;
    /// A restore whose outcome is shared with its worker in the same manner.
    struct PendingRestore {
        Uuid record;
        std::shared_ptr<std::optional<Cleaner::Restored>> outcome;
    };

    void load();
    void startUp();
    void setBreakdown(StorageBreakdown breakdown);
    void updateVolume();
    void setPhase(Phase phase);
    void setFdaGranted(bool isGranted);
    [[nodiscard]] static ScanResult scanned(ScanEngine& engine);
    void finishScan(const std::shared_ptr<ScanEngine>& engine, ScanResult result);
    [[nodiscard]] static std::set<std::string> preselected(const std::vector<Finding>& findings);
    [[nodiscard]] Cleaner::Progress cleaningReport(int number);
    void showCleaning(int number, int done, const std::string& current);
    void finishCleaning(int number, const PendingCleanUp& pending);
    /// Whether the history could be saved.
    bool keep(const CleanRecord& record);
    [[nodiscard]] Restoration finishRestore(Cleaner::Restored outcome);
    void checkThread() const;
    void checkWriter() const;

    template <typename T>
    void assign(T& field, T value, void (AppModel::*changed)())
    {
        checkThread();
        if (field == value)
            return;
        field = std::move(value);
        Q_EMIT(this->*changed)();
    }

    const Options m_options;
    std::optional<FolderLock> m_lock;
    bool m_isWriter = false;

    StorageBreakdown m_breakdown;
    bool m_isBreakdownReady = false;
    Phase m_phase = Phase::idle;
    std::vector<Finding> m_findings;
    mutable std::optional<PathTree> m_listed; ///< of these findings; made when first needed
    std::set<std::string> m_selection;
    std::optional<SheetKind> m_sheet;
    std::optional<CleaningState> m_cleaning;
    std::vector<CleanRecord> m_history;
    std::vector<Snapshot> m_snapshots;
    std::vector<std::string> m_notices;
    double m_largeThresholdMB = 500;
    bool m_isFdaGranted = false;
    std::shared_ptr<const ScanProgress> m_scanProgress;
    std::optional<TimePoint> m_lastScan;
    Unreadable m_unreadable;
    std::optional<Screen> m_requestedScreen;

    std::shared_ptr<ScanEngine> m_engine;
    int m_breakdownsStarted = 0;
    int m_breakdownStored = 0; ///< number of the one that is shown: an earlier one that ends later is dropped
    int m_cleaningNumber = 0;  ///< of the clean-up that is shown
    std::stop_source m_cleaningStop{std::nostopstate};
    std::vector<PendingCleanUp> m_pending; ///< clean-ups that are not yet in the history
    std::vector<PendingRestore> m_restores;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

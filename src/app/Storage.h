#pragma once

#include "app/FolderHistory.h"
#include "app/ModelPart.h"
#include "app/Workers.h"
#include "clean/Persist.h"
#include "clean/Snapshot.h"
#include "insight/Predictor.h"
#include "platform/values/Time.h"
#include "scan/StorageBreakdown.h"

#include <span>
#include <vector>

namespace orlen {

/// How the disk is used: the storage breakdown, its earlier readings (the snapshots), and the volume's space.
/// Main thread.
class Storage : public ModelPart {
    Q_OBJECT
    Q_PROPERTY(bool breakdownReady READ isBreakdownReady NOTIFY breakdownChanged)

public:
    enum class Recording { none, ifStale };
    using Saving = FolderHistory::Saving;

    Storage(std::vector<Snapshot> snapshots, Saving saving, QObject* parent = nullptr);

    /// Empty until first computed.
    [[nodiscard]] const StorageBreakdown& breakdown() const { return m_breakdown; }
    [[nodiscard]] bool isBreakdownReady() const { return m_isBreakdownReady; }
    /// Oldest first, at most 400.
    [[nodiscard]] const std::vector<Snapshot>& snapshots() const { return m_snapshots; }
    /// What folders held at the end of past scans.
    [[nodiscard]] FolderHistory& folders() { return m_folders; }
    [[nodiscard]] const FolderHistory& folders() const { return m_folders; }
    /// The growth forecast from the snapshots.
    [[nodiscard]] Prediction prediction() const;

    /// Whether a snapshot is due: there is none, or the newest is more than 12 hours old.
    [[nodiscard]] static bool isStale(std::span<const Snapshot> snapshots, TimePoint now);

    /// Measures now, records a snapshot if one is due, and keeps the volume's space up to date from here on.
    void startUp();
    /// Whether `startUp` was called.
    [[nodiscard]] bool isKeptUpToDate() const { return m_isKeptUpToDate; }
    /// Measures the storage breakdown again, then records a snapshot if requested and due.
    void refreshBreakdown(Recording recording);
    /// Sets a breakdown measured elsewhere; a measurement in progress is dropped.
    void setBreakdown(StorageBreakdown breakdown);
    /// Reads the volume's total and free space again.
    void updateVolume();
    /// Call after items have moved. Reads the volume's space, and the breakdown too if it is kept up to date.
    void followMoves();
    /// Appends a snapshot of the current breakdown, replacing one from the past hour, drops the oldest beyond
    /// 400, and saves the list.
    void recordSnapshot();

Q_SIGNALS:
    void breakdownChanged();
    void snapshotsChanged();

private:
    void store(int number, StorageBreakdown breakdown);

    const Saving m_saving;
    StorageBreakdown m_breakdown;
    bool m_isBreakdownReady = false;
    bool m_isKeptUpToDate = false;
    std::vector<Snapshot> m_snapshots;
    FolderHistory m_folders;
    int m_started = 0;
    int m_stored = 0; ///< of the one shown; an older one that finishes later is dropped

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen

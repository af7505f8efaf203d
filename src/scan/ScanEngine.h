#pragma once

#include "model/Finding.h"
#include "platform/images/ImageWorkers.h"
#include "scan/FolderTotals.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/UnreadableFolders.h"
#include "scan/photos/PhotoAnalyzer.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace orlen {

struct ScanOptions {
    std::int64_t largeThreshold = 0; ///< bytes from which a file is a large file
    ImageWorkers::Options images;    ///< who looks at the photos
};

/// Runs one Smart Scan of the home folder. Use one engine per scan.
class ScanEngine {
public:
    explicit ScanEngine(ScanOptions options) : m_options(std::move(options)) {}

    /// The findings of all steps, in the order the steps finished: one per kind that has entries, not yet
    /// rated. Blocks until all steps have ended, or soon after the flag is set: call it on a worker.
    [[nodiscard]] std::vector<Finding> run();

    [[nodiscard]] const ScanOptions& options() const { return m_options; }
    [[nodiscard]] ScanProgress& progress() { return m_progress; }
    [[nodiscard]] const ScanProgress& progress() const { return m_progress; }
    [[nodiscard]] ScanFlag& flag() { return m_flag; }
    /// Grows while the scan runs.
    [[nodiscard]] const UnreadableFolders& unreadable() const { return m_unreadable; }
    /// What the folders of the home folder hold that the storage breakdown does not count. Valid once `run`
    /// has returned.
    [[nodiscard]] const FolderTotals& folderTotals() const { return m_folderTotals; }
    /// Valid once `run` has returned.
    [[nodiscard]] const PhotoCoverage& photoCoverage() const { return m_photoCoverage; }

private:
    ScanOptions m_options;
    ScanProgress m_progress;
    ScanFlag m_flag;
    UnreadableFolders m_unreadable;
    FolderTotals m_folderTotals;
    PhotoCoverage m_photoCoverage;
};

} // namespace orlen

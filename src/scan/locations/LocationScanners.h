#pragma once

#include "model/Finding.h"
#include "platform/values/Time.h"
#include "scan/locations/SourceReader.h"

#include <initializer_list>
#include <mutex>
#include <optional>
#include <stop_token>
#include <utility>
#include <vector>

namespace orlen {

class RecentDocuments;
class ScanProgress;
class UnreadableFolders;

/// The seven scanners of known places. Each blocks on the disk and returns one finding per kind it covers,
/// possibly empty; what cannot be listed is skipped. All may run at once. A stopped scanner returns what it
/// has.
class LocationScanners {
public:
    /// `unreadable`, if not null, collects folders that could not be read.
    LocationScanners(ScanProgress& progress, std::stop_token stop, UnreadableFolders* unreadable = nullptr)
        : m_progress(progress), m_stop(std::move(stop)), m_unreadable(unreadable)
    {
    }

    [[nodiscard]] std::vector<Finding> cachesAndLogs() const;
    [[nodiscard]] std::vector<Finding> backups() const;
    [[nodiscard]] std::vector<Finding> developer() const;
    [[nodiscard]] std::vector<Finding> packageCaches() const;
    [[nodiscard]] std::vector<Finding> trashAndMail() const;
    [[nodiscard]] std::vector<Finding> languagePacks() const;
    /// Items of the Downloads folders not touched in the 30 days before `now`.
    [[nodiscard]] std::vector<Finding> downloads(TimePoint now, const RecentDocuments& recent) const;

private:
    [[nodiscard]] const SourceReader& reader() const;
    [[nodiscard]] std::vector<Finding> read(std::initializer_list<FindingKind> kinds) const;

    ScanProgress& m_progress;
    std::stop_token m_stop;
    UnreadableFolders* m_unreadable;
    /// Made by the first scanner that runs, for all of them.
    mutable std::once_flag m_isRead;
    mutable std::optional<SourceReader> m_reader;
};

} // namespace orlen

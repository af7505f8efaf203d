#pragma once

#include "model/FileEntry.h"
#include "scan/locations/CacheOwners.h"
#include "scan/locations/SourceMap.h"

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class ScanProgress;
class UnreadableFolders;

/// Lists and measures what the rows of the table lead to. It changes nothing, so several may work at once. A
/// stopped one returns what it has.
class SourceReader {
public:
    /// `unreadable`, if not null, collects folders that could not be read.
    SourceReader(ScanProgress& progress, std::stop_token stop, UnreadableFolders* unreadable = nullptr);

    /// The measured entries of all rows of a kind, row by row, each row's largest first. Blocks on the disk.
    [[nodiscard]] std::vector<FileEntry> entries(FindingKind kind) const;

    /// The paths that rows of a kind may offer, unmeasured, in listing order. Blocks on the disk.
    [[nodiscard]] std::vector<std::string> paths(FindingKind kind) const;

    struct Holding {
        FindingKind kind;
        FileEntry entry;
    };
    /// The measured entry that is or contains the path; nothing if no row offers one. Whether a download is
    /// old enough is not considered. Blocks on the disk.
    [[nodiscard]] std::optional<Holding> holding(const std::string& path) const;

private:
    [[nodiscard]] std::vector<FileEntry> children(const SourceRow& row) const;
    [[nodiscard]] std::vector<FileEntry> single(const Source& source) const;
    [[nodiscard]] std::vector<std::string> pathsIn(const Source& folder) const;
    void leaveRoomForOthers(const SourceRow& row, std::vector<FileEntry>& entries) const;
    void describe(const SourceRow& row, FileEntry& entry) const;
    void noteUnreachable(std::string path, int error) const;

    ScanProgress& m_progress;
    std::stop_token m_stop;
    UnreadableFolders* m_unreadable;
    SourceMap m_map;
    CacheOwners m_owners;
};

} // namespace orlen

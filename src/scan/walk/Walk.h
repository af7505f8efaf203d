#pragma once

#include "model/FileEntry.h"
#include "scan/Cand.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class FolderTotals;
class ScanProgress;
class UnreadableFolders;

/// The one walk over the user's files that feeds large, old and duplicate files and the photo analysis.
/// Blocks on the disk; folders are shared among the disk workers. A stopped walk returns what it has.
namespace Walk {

struct Found {
    /// Regular files of at least 1,000,000 allocated bytes, sorted by path, one name per file.
    std::vector<Cand> cands;
    /// Image files of at least 20,000 bytes in the image folders, sorted by path. Large ones are also in
    /// `cands`.
    std::vector<Cand> images;
    /// Caches of at least 1,000,000 bytes, tagged as such or parts of a project, largest first, at most 600,
    /// each rated `review` with a note.
    std::vector<FileEntry> caches;
    /// Large files in such folders, sorted by path. They count as large files but are not
    /// compared with others: people tag folders of virtual machines to exclude them from backups.
    std::vector<Cand> largeInCaches;
};

struct Options {
    std::int64_t largeBytes = 500'000'000;   ///< smallest large file in a cache
    UnreadableFolders* unreadable = nullptr; ///< collects folders that could not be read; may be null
    /// Receives the home folder as a root, without the folders of the storage breakdown; may be null.
    FolderTotals* totals = nullptr;
};

/// Walks the home folder except hidden items, top-level Library, Applications, Public and snap, packages,
/// "node_modules", and everything whose contents are protected or mirrored by a sync program.
[[nodiscard]] Found home(ScanProgress& progress, const std::stop_token& stop, const Options& options = {});

/// Walks the given folders by the same rules, except those for top-level names, and collects images
/// everywhere.
[[nodiscard]] Found folders(const std::vector<std::string>& roots, ScanProgress& progress,
                            const std::stop_token& stop, const Options& options = {});

/// The input of the duplicate search: the candidates, and the images too small to be among them.
[[nodiscard]] std::vector<Cand> duplicateInput(const Found& found);

} // namespace Walk
} // namespace orlen

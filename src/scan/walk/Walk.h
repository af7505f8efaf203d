#pragma once

#include "model/FileEntry.h"
#include "scan/Cand.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class ScanProgress;
class UnreadableFolders;

/// One walk over the user's files, which feeds large, old and duplicate files and the photo analysis. Blocks
/// on the disk; the folders are shared out to the pool of disk workers. A stopped walk returns what it has.
namespace Walk {

struct Found {
    /// Regular files of at least 1,000,000 allocated bytes, by path; of the names of one file only the first.
    std::vector<Cand> cands;
    /// Image files of at least 20,000 bytes in the image folders, by path, at most 1,500; a large one is in
    /// both.
    std::vector<Cand> images;
    /// Folders that mark themselves as caches of at least 1,000,000 bytes, largest first, at most 600; each
    /// is rated `review` and carries its note.
    std::vector<FileEntry> taggedCaches;
    /// Large files in folders that mark themselves as caches, by path. They are large files like others, but
    /// not compared with anything: people tag folders of virtual machines to keep them out of backups.
    std::vector<Cand> largeInCaches;
};

struct Options {
    std::int64_t largeBytes = 500'000'000;   ///< from which a file in a tagged folder is a large one
    UnreadableFolders* unreadable = nullptr; ///< told of folders that could not be read; null: nobody asks
};

/// Walks the home folder: no hidden items, no top-level Library, Applications, Public or snap, no packages,
/// no "node_modules", nothing whose contents are protected or mirrored by a sync program.
[[nodiscard]] Found home(ScanProgress& progress, const std::stop_token& stop, const Options& options = {});

/// Walks the given folders by the same rules but without those for top-level names, and collects images
/// wherever they lie.
[[nodiscard]] Found folders(const std::vector<std::string>& roots, ScanProgress& progress,
                            const std::stop_token& stop, const Options& options = {});

/// What a search for duplicates looks at: the candidates and the images that are too small to be among them.
[[nodiscard]] std::vector<Cand> duplicateInput(const Found& found);

} // namespace Walk
} // namespace orlen

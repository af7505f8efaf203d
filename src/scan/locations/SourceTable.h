#pragma once

#include "model/FindingKind.h"
#include "model/Message.h"
#include "model/Rating.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What a source contributes.
enum class Reading {
    children,       ///< each item directly in the folder, measured
    single,         ///< the path itself, regardless of limits
    unusedChildren, ///< each item directly in the folder not opened for a while, of any size and number
    never,          ///< nothing: what the row names in the folder, no other row may offer either
};

/// Whose conventions a source follows. A home folder may come from a Mac or be shared with one.
enum class Layout {
    mac,
    /// Links are neither followed nor offered, nor is a Trash folder among the entries.
    freedesktop,
};

enum class Offered {
    all,
    deletable, ///< only what the user may move away
};

/// One row of the table of known places. To add a place, add a row.
struct SourceRow {
    FindingKind kind = FindingKind::caches;
    Reading reading = Reading::children;
    Layout layout = Layout::freedesktop;
    Offered offered = Offered::deletable;
    /// Patterns for `AppFolders::expand`, in which "*" matches part or all of a folder's name.
    std::vector<std::string_view> from = {};
    std::string_view below = {};       ///< pattern below each of them, starting with "/"
    std::int64_t minimum = 1;          ///< smallest entry, in bytes; empty ones are never offered
    std::size_t limit = 600;           ///< most entries from all folders of the row
    std::optional<Rating> rating = {}; ///< of each entry; absent: that of the finding
    Text note = {};                    ///< says what an entry is
    /// What stands in the note's place "name", or is the note when there is no text: "*" is what the first
    /// "*" of the pattern matched.
    std::string_view noteName = {};
    Text caution = {};                       ///< says what to consider before removing it; follows the note
    std::vector<std::string_view> only = {}; ///< names of entries, may use "*"; empty: any
    /// Names that are never entries, may use "*". "Name/Sub*" excludes a "Name" that contains a match.
    std::vector<std::string_view> except = {};
    /// Names that are not entries either, but count among the largest: other rows offer them.
    std::vector<std::string_view> exceptAfterLimit = {};
    std::vector<std::string_view> exceptFolders = {}; ///< names that "*" in `from` does not match
    /// Test of a folder `from` leads to, above `below`; may read the disk.
    bool (*within)(const std::string& folder) = nullptr;
    bool (*accepts)(const std::string& path) = nullptr; ///< additional test of the entry; may read the disk
    /// A note for a single entry; may read the disk.
    Message (*noteOf)(const std::string& path) = nullptr;
    bool isOwnedByProgram = false; ///< entries are named after the program that writes them
    bool maybeEnvironment = false; ///< offered even if programs are installed in it
};

/// All rows. Within a kind they are in display order; an entry that two rows could offer belongs to the
/// first.
[[nodiscard]] const std::vector<SourceRow>& sourceRows();

} // namespace orlen

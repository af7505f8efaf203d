#pragma once

#include "model/FindingKind.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What a source contributes.
enum class Reading {
    children,       ///< what lies directly in the folder, each measured
    single,         ///< the path itself, no limit needed
    unusedChildren, ///< what lies directly in the folder and was not opened for a while, of any size and
                    ///< number
};

/// Whose conventions a source follows. A home folder may have been brought along from a Mac or be shared with
/// one.
enum class Layout {
    mac,
    /// Links are never followed nor offered, nor is a Trash folder that lies among the entries.
    freedesktop,
};

enum class Offered {
    all,
    deletable, ///< only what the user may move away
};

/// One line of the table of known places. To look at a further place, add a line.
struct SourceRow {
    FindingKind kind = FindingKind::caches;
    Reading reading = Reading::children;
    Layout layout = Layout::freedesktop;
    Offered offered = Offered::deletable;
    /// Patterns of `Places::expand`, in which "*" stands for part or all of a folder's name.
    std::vector<std::string_view> from = {};
    std::int64_t minimum = 1;   ///< bytes of the smallest entry; an entry without any is never offered
    std::size_t limit = 600;    ///< most entries of all folders that the row stands for
    std::string_view note = {}; ///< "{1}" in it is what the first "*" of the pattern stands for; empty: none
    std::vector<std::string_view> only = {}; ///< names of entries, with "*"; empty: any
    /// Names that are never entries, with "*". "Name/Sub*" speaks of a "Name" that holds something so named.
    std::vector<std::string_view> except = {};
    /// Names that are never entries either, but take up room among the largest: other rows offer them.
    std::vector<std::string_view> exceptAfterLimit = {};
    std::vector<std::string_view> exceptFolders = {};   ///< names that a "*" in `from` does not stand for
    bool (*accepts)(const std::string& path) = nullptr; ///< a further test of the entry; may read the disk
    /// A note for this entry alone; may read the disk.
    std::string (*noteOf)(const std::string& path) = nullptr;
};

/// All rows. Those of one kind stand in the order in which their entries are listed; an entry that two rows
/// would offer belongs to the first.
[[nodiscard]] const std::vector<SourceRow>& sourceRows();

} // namespace orlen

#pragma once

#include "model/FileEntry.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orlen {

/// The entries that one kept file makes dispensable.
struct KeptSet {
    std::string kept; ///< path of the file that stays; empty for an entry that depends on none
    std::vector<std::size_t> entries; ///< their numbers, ascending

    friend bool operator==(const KeptSet&, const KeptSet&) = default;
};

/// The sets in the order of their first entries; an entry that depends on no file is a set of its own. Pure.
[[nodiscard]] std::vector<KeptSet> keptSets(const std::vector<FileEntry>& entries);

} // namespace orlen

#pragma once

#include "model/Finding.h"
#include "scan/Cand.h"

#include <cstdint>
#include <stop_token>
#include <vector>

namespace orlen {

/// Finds files with exactly the same content. Blocks on the disk; reads several files at once on threads of
/// its own. A file that cannot be read, or that changes while the search runs, is left out. A stopped search
/// reports no sets.
namespace Duplicates {

/// A file that the kept one makes superfluous.
struct Copy {
    Cand file;
    bool sharesData = false; ///< lies in the same place on disk as the kept one: removing it frees little
};

/// Files with identical content. The kept one is not listed for removal. Of several names of one file only
/// the name preferred for keeping takes part: removing another name would free nothing.
struct Set {
    Cand kept;
    std::vector<Copy> copies; ///< in the order of preference for keeping
};

struct Result {
    std::vector<Set> sets;            ///< by path of the kept copy
    std::int64_t filesConsidered = 0; ///< different paths given
    std::int64_t filesHashed = 0;     ///< files that were opened
    std::int64_t bytesHashed = 0;     ///< bytes read to hash and to compare
};

/// Sizes, then head and tail, then whole contents decide; a file is opened only when another has its size.
[[nodiscard]] Result find(const std::vector<Cand>& cands, const std::stop_token& stop);

/// The `duplicates` finding: every copy but the kept one, with a note that names the kept one.
[[nodiscard]] Finding finding(const Result& result);

} // namespace Duplicates
} // namespace orlen

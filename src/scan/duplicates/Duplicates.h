#pragma once

#include "model/Finding.h"
#include "scan/Cand.h"
#include "scan/ScanProgress.h"
#include "scan/duplicates/KeepRule.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

/// Finds files with identical content. Blocks on the disk; reads several files at once on its own threads. A
/// file that cannot be read or changes during the search is left out. Returns no sets when stopped.
namespace Duplicates {

/// A file made redundant by the kept one.
struct Copy {
    Cand file;
    bool sharesData = false; ///< shares its blocks on disk with the kept one: removing it frees little
};

/// Files with identical content. Of several hard links to one file only the preferred name takes part, since
/// removing another would free nothing.
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

/// Compares lengths, then head and tail, then whole contents. A file is opened only if another has its
/// length. The rule says which of each set is kept; sets of which no copy may go are left out. The progress,
/// if there is one, counts the bytes of the whole contents.
[[nodiscard]] Result find(const std::vector<Cand>& cands, const std::stop_token& stop,
                          const KeepRule& rule = {}, ScanProgress* progress = nullptr);

/// What is noted on a copy of the file at this path.
[[nodiscard]] Message note(const std::string& kept, bool sharesData);

/// The `duplicates` finding: every copy except the kept one, which its note names.
[[nodiscard]] Finding finding(const Result& result);

} // namespace Duplicates
} // namespace orlen

#pragma once

#include "model/Finding.h"
#include "platform/values/Time.h"
#include "scan/Cand.h"

#include <cstdint>
#include <stop_token>
#include <vector>

namespace orlen {

class RecentDocuments;

/// The `largeFiles` finding (at least `threshold` bytes, the 300 largest), then the `oldFiles` finding (at
/// least 10,000,000 bytes, neither changed nor opened in the 365 days before `now`, from the 400 largest).
/// Blocks on the disk.
[[nodiscard]] std::vector<Finding> largeAndOld(const std::vector<Cand>& cands, std::int64_t threshold,
                                               TimePoint now, const RecentDocuments& recent,
                                               const std::stop_token& stop = {});

} // namespace orlen

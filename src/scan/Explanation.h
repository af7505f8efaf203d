#pragma once

#include "clean/Exclusions.h"
#include "clean/Protection.h"
#include "model/Finding.h"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

/// What this program would do with one path, and why.
struct Explanation {
    std::string path;
    bool exists = false;
    std::int64_t size = 0; ///< allocated bytes of the path and what is below it; 0 if it is missing
    Protection protection = Protection::none;
    /// The line that keeps the path, or else an entry it would move with, from being offered.
    std::optional<Exclusion> exclusion;
    /// Rated findings of one entry each: the path itself, or what contains it and would move with it. An
    /// exclusion does not change them.
    /// Duplicates and photos are not among them: whether a file is one, only a whole scan knows.
    std::vector<Finding> findings;
};

/// `path` is in the form all rules compare. A file of at least `largeThreshold` bytes is a large one. Blocks
/// on the disk; any thread.
[[nodiscard]] Explanation explain(const std::string& path, std::int64_t largeThreshold,
                                  const Exclusions& exclusions = {}, const std::stop_token& stop = {});

} // namespace orlen

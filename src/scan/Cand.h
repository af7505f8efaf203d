#pragma once

#include "platform/Time.h"

#include <cstdint>
#include <string>

namespace orlen {

/// One walked file.
struct Cand {
    std::string path;      ///< valid UTF-8
    std::int64_t size = 0; ///< allocated bytes
    TimePoint modified;

    friend bool operator==(const Cand&, const Cand&) = default;
};

} // namespace orlen

#pragma once

#include <cstdint>

namespace orlen {

inline constexpr std::int64_t kKiB = 1024; ///< bytes

} // namespace orlen

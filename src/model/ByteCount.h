#pragma once

#include <cstdint>
#include <string>

namespace orlen {

/// Sizes as the whole program shows them: decimal units (1 KB is 1,000 bytes), whole numbers up to KB, at
/// most one decimal from MB on and none when it would be 0: "0 bytes", "1 byte", "999 bytes", "12 KB", "1.2
/// GB", "500 MB". A negative size is shown as 0. A value that rounds up to 1,000 of a unit is shown as 1 of
/// the next.
[[nodiscard]] std::string byteCount(std::int64_t bytes);

} // namespace orlen

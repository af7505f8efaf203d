#pragma once

#include <cstdint>
#include <string>

namespace orlen {

/// Sizes as shown everywhere: decimal units (1 KB is 1,000 bytes), whole numbers up to KB, from MB on one
/// decimal unless it is 0: "0 bytes", "1 byte", "999 bytes", "12 KB", "1.2 GB", "500 MB". Negative sizes are
/// shown as 0. A value that rounds up to 1,000 is shown as 1 of the next unit.
[[nodiscard]] std::string byteCount(std::int64_t bytes);

} // namespace orlen

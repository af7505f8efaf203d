#pragma once

#include <cstdint>
#include <string>

namespace orlen {

/// A size in the unit it is shown in: decimal units (1 KB is 1,000 bytes), whole numbers up to KB, from MB on
/// one decimal unless it is 0. A value that rounds up to 1,000 counts as 1 of the next unit.
struct ByteAmount {
    enum class Unit { byte, kilobyte, megabyte, gigabyte, terabyte };

    std::uint64_t whole = 0;
    int tenths = 0; ///< 0 to 9
    Unit unit = Unit::byte;

    /// Negative sizes count as 0.
    [[nodiscard]] static ByteAmount of(std::int64_t bytes);
};

/// Sizes in English, and in what machines read: "0 bytes", "1 byte", "999 bytes", "12 KB", "1.2 GB", "500
/// MB".
[[nodiscard]] std::string byteCount(std::int64_t bytes);

} // namespace orlen

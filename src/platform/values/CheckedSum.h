#pragma once

#include <cstdint>
#include <string_view>

/// Arithmetic on sizes that aborts with a message instead of wrapping around: a wrapped size would let a
/// clean-up promise something untrue.
namespace orlen {

/// Prints the message to standard error and aborts.
[[noreturn]] void fatalError(std::string_view message);

/// More than any disk holds, and exact as a double. Sizes reported by a file system are capped to it, so that
/// one corrupt number neither wraps nor aborts.
inline constexpr std::int64_t kMostBytes = std::int64_t{1} << 53;

/// Sum of two sizes from 0 to `kMostBytes`, capped to `kMostBytes`. For sizes reported by a disk.
[[nodiscard]] constexpr std::int64_t cappedAdd(std::int64_t a, std::int64_t b)
{
    return a < kMostBytes - b ? a + b : kMostBytes;
}

/// Bytes in that many blocks, capped to `kMostBytes`.
[[nodiscard]] constexpr std::int64_t cappedBytes(std::uint64_t blocks, std::uint64_t blockSize)
{
    std::uint64_t bytes = 0;
    constexpr auto kMost = static_cast<std::uint64_t>(kMostBytes);
    return __builtin_mul_overflow(blocks, blockSize, &bytes) || bytes > kMost
               ? kMostBytes
               : static_cast<std::int64_t>(bytes);
}

[[nodiscard]] std::int64_t checkedAdd(std::int64_t a, std::int64_t b);
[[nodiscard]] std::int64_t checkedSubtract(std::int64_t a, std::int64_t b);

/// The integer part; aborts if it is not finite or does not fit into 64 bits.
[[nodiscard]] std::int64_t checkedInteger(double value);

} // namespace orlen

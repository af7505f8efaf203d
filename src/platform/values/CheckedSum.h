#pragma once

#include <cstdint>
#include <string_view>

/// Arithmetic on sizes that stops the program with a message instead of wrapping: a wrapped size would let
/// a clean-up promise something untrue.
namespace orlen {

/// Prints the message to standard error and aborts.
[[noreturn]] void fatalError(std::string_view message);

/// More than any disk holds, and exact as a double. Sizes that a file system tells are cut to it, so that one
/// corrupt number neither wraps nor stops the program.
inline constexpr std::int64_t kMostBytes = std::int64_t{1} << 53;

/// The sum of two sizes from 0 to `kMostBytes`, cut to `kMostBytes`: for what a disk tells.
[[nodiscard]] constexpr std::int64_t cappedAdd(std::int64_t a, std::int64_t b)
{
    return a < kMostBytes - b ? a + b : kMostBytes;
}

/// The bytes in so many blocks, cut to `kMostBytes`.
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

/// The integer part of a value; stops the program when it is not finite or does not fit into 64 bits.
[[nodiscard]] std::int64_t checkedInteger(double value);

} // namespace orlen

#pragma once

#include <cstdint>
#include <string_view>

/// Arithmetic on sizes that stops the program with a message instead of wrapping: a wrapped size would let
/// a clean-up promise something untrue.
namespace orlen {

/// Prints the message to standard error and aborts.
[[noreturn]] void fatalError(std::string_view message);

[[nodiscard]] std::int64_t checkedAdd(std::int64_t a, std::int64_t b);
[[nodiscard]] std::int64_t checkedSubtract(std::int64_t a, std::int64_t b);

/// The integer part of a value; stops the program when it is not finite or does not fit into 64 bits.
[[nodiscard]] std::int64_t checkedInteger(double value);

} // namespace orlen

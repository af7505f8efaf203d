#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Shared memory for pixels, written by one process and read by another, behind a descriptor. Any thread.
namespace orlen::PixelBuffer {

/// Uses memory only once it is written.
[[nodiscard]] Result<UniqueFd> ofSize(std::size_t bytes);

/// Writes to the beginning. False if the buffer is too small or cannot be written.
[[nodiscard]] bool write(int buffer, std::span<const std::uint8_t> pixels);

/// The first `length` bytes; nothing if there are fewer, since the other process may have truncated it.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> read(int buffer, std::size_t length);

} // namespace orlen::PixelBuffer

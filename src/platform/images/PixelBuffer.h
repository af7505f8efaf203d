#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Memory that one process fills with pixels and another reads, behind a descriptor. Any thread.
namespace orlen::PixelBuffer {

/// Takes memory only for what is written.
[[nodiscard]] Result<UniqueFd> ofSize(std::size_t bytes);

/// Fills the beginning. False when the buffer is too small or cannot be written.
[[nodiscard]] bool write(int buffer, std::span<const std::uint8_t> pixels);

/// The first `length` bytes; nothing when there are fewer: the other process may have shortened it.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> read(int buffer, std::size_t length);

} // namespace orlen::PixelBuffer

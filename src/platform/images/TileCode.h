#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Packs the tile of a feature print, with some loss: what is left out is finer than what comparing looks at.
/// Pure; any thread.
namespace orlen::TileCode {

inline constexpr std::size_t kSide = 128; ///< pixels
inline constexpr std::size_t kMostBytes = 3'700;

using Tile = std::array<std::uint8_t, kSide * kSide>;

/// At most `kMostBytes`, almost as many for most pictures. About 1 ms.
[[nodiscard]] std::vector<std::uint8_t> packed(const Tile& tile);

/// Some 100 microseconds. Bytes that nobody packed give some tile or other.
[[nodiscard]] Tile unpacked(std::span<const std::uint8_t> bytes);

} // namespace orlen::TileCode

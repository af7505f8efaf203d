#pragma once

#include "platform/images/RgbImage.h"

#include <cstdint>
#include <vector>

/// The input of the small network. Pure; any thread.
namespace orlen::NetworkInput {

inline constexpr int kSide = 128;   ///< pixels; the picture is squashed to a square
inline constexpr int kChannels = 4; ///< red, green, blue, and roughness of the fine structure

/// The channels one after another, each row by row; empty for an empty picture.
[[nodiscard]] std::vector<std::uint8_t> of(const RgbImage& image);

} // namespace orlen::NetworkInput

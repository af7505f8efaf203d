#pragma once

#include "platform/images/RgbImage.h"

#include <cstdint>
#include <vector>

/// What the small network sees of a picture. Pure; any thread.
namespace orlen::NetworkInput {

inline constexpr int kSide = 128;   ///< pixels; the picture is squashed to a square
inline constexpr int kChannels = 4; ///< red, green, blue, and how rough the fine structure is

/// The channels one after another, each by rows; empty for an empty picture.
[[nodiscard]] std::vector<std::uint8_t> of(const RgbImage& image);

} // namespace orlen::NetworkInput

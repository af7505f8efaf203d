#pragma once

#include "platform/images/RgbImage.h"

#include <array>
#include <cstddef>
#include <vector>

/// The look of a picture in 896 numbers that nothing was learnt for: where it is light and dark, how its
/// colours lie against each other, and which way its edges run. Pure; any thread.
namespace orlen::LayoutDescriptor {

inline constexpr int kSide = 128;      ///< pixels of the square that a picture is stretched to
inline constexpr int kLightCells = 16; ///< cells on each side
inline constexpr int kColourCells = 8; ///< as kLightCells
inline constexpr int kEdgeCells = 8;   ///< as kLightCells
inline constexpr int kDirections = 8;
inline constexpr std::size_t kLength =
    kLightCells * kLightCells + 2 * kColourCells * kColourCells + kDirections * kEdgeCells * kEdgeCells;

using Vector = std::array<float, kLength>;

/// Of length 1. `grey` is the picture stretched to kSide x kSide.
[[nodiscard]] Vector describe(const RgbImage& image, const std::vector<float>& grey);

} // namespace orlen::LayoutDescriptor

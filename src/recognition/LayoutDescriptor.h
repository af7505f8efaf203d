#pragma once

#include "platform/images/RgbImage.h"

#include <array>
#include <cstddef>
#include <vector>

/// A picture as 896 numbers, none of them learnt: where it is light and dark, how its colours compare, and
/// which way its edges run. Pure; any thread.
namespace orlen::LayoutDescriptor {

inline constexpr int kSide = 128;      ///< side of the square the picture is stretched to, in pixels
inline constexpr int kLightCells = 16; ///< cells on each side
inline constexpr int kColourCells = 8; ///< as kLightCells
inline constexpr int kEdgeCells = 8;   ///< as kLightCells
inline constexpr int kDirections = 8;
inline constexpr std::size_t kLength =
    kLightCells * kLightCells + 2 * kColourCells * kColourCells + kDirections * kEdgeCells * kEdgeCells;

using Vector = std::array<float, kLength>;

/// A unit vector. `grey` is the picture stretched to kSide x kSide.
[[nodiscard]] Vector describe(const RgbImage& image, const std::vector<float>& grey);

} // namespace orlen::LayoutDescriptor

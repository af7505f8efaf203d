#pragma once

#include <cstdint>

/// How large a picture may be. Checked on the header before anything is decoded, since a few bytes can
/// promise any size.
namespace orlen::ImageLimits {

inline constexpr std::int64_t kLongestSide = 30'000; ///< pixels
inline constexpr std::int64_t kMostPixels = 250'000'000;
/// A picture missing more than this share at one end is damaged beyond use.
inline constexpr double kLargestMissingShare = 0.1;

[[nodiscard]] constexpr bool allow(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide &&
           width * height <= kMostPixels;
}

} // namespace orlen::ImageLimits

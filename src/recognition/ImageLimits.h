#pragma once

#include <cstdint>

/// How large a picture may be. A header costs a few bytes whatever it promises, so it is looked at before
/// anything is decoded.
namespace orlen::ImageLimits {

inline constexpr std::int64_t kLongestSide = 30'000; ///< pixels
inline constexpr std::int64_t kMostPixels = 250'000'000;
/// A picture of which more is missing, from one of its ends, is damaged beyond use.
inline constexpr double kLargestMissingShare = 0.1;

[[nodiscard]] constexpr bool allow(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width <= kLongestSide && height <= kLongestSide &&
           width * height <= kMostPixels;
}

} // namespace orlen::ImageLimits

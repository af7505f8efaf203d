#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

/// A small picture in memory: 8-bit sRGB, red, green, blue, rows from the top without gaps.
struct RgbImage {
    int width = 0;  ///< pixels
    int height = 0; ///< pixels
    std::vector<std::uint8_t> pixels;

    [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }
    [[nodiscard]] const std::uint8_t* row(int y) const
    {
        return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width) * 3;
    }
};

} // namespace orlen

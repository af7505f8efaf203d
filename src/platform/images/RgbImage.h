#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

/// A small picture in memory: 8-bit sRGB, rows from the top without padding.
struct RgbImage {
    int width = 0;  ///< pixels
    int height = 0; ///< pixels
    std::vector<std::uint8_t> pixels;

    /// Bytes of the pixels of such a picture.
    [[nodiscard]] static constexpr std::size_t byteCount(int width, int height)
    {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3;
    }
    [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }
    [[nodiscard]] const std::uint8_t* row(int y) const { return pixels.data() + byteCount(width, y); }
};

} // namespace orlen

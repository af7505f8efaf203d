#pragma once

#include "platform/images/RgbImage.h"

#include <cstddef>
#include <vector>

namespace orlen {

/// A picture in shades of grey, for comparing it in detail. Pure; any thread.
class GreyPicture {
public:
    GreyPicture() = default;
    GreyPicture(int width, int height)
        : m_width(width), m_height(height),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    {
    }
    explicit GreyPicture(const RgbImage& image);

    [[nodiscard]] int width() const { return m_width; }   ///< pixels
    [[nodiscard]] int height() const { return m_height; } ///< pixels
    [[nodiscard]] float* row(int y) { return m_pixels.data() + index(0, y); }
    [[nodiscard]] const float* row(int y) const { return m_pixels.data() + index(0, y); }

    /// Between the four pixels around a point; outside, that of the edge.
    [[nodiscard]] float at(float x, float y) const;
    /// Half as wide and high, but at least one pixel.
    [[nodiscard]] GreyPicture halved() const;
    /// Stretched to exactly this size.
    [[nodiscard]] GreyPicture resized(int width, int height) const;

private:
    [[nodiscard]] std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    }
    [[nodiscard]] GreyPicture softened() const;
    [[nodiscard]] GreyPicture stretched(int width, int height) const;

    int m_width = 0;
    int m_height = 0;
    std::vector<float> m_pixels; ///< 0 to 255, rows from the top
};

} // namespace orlen

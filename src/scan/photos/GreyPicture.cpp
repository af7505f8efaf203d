#include "scan/photos/GreyPicture.h"

#include <algorithm>
#include <cstdint>

namespace orlen {

GreyPicture::GreyPicture(const RgbImage& image) : GreyPicture(image.width, image.height)
{
    const std::uint8_t* from = image.pixels.data();
    for (float& grey : m_pixels) {
        grey = 0.299F * static_cast<float>(from[0]) + 0.587F * static_cast<float>(from[1]) +
               0.114F * static_cast<float>(from[2]);
        from += 3;
    }
}

float GreyPicture::at(float x, float y) const
{
    x = std::clamp(x, 0.0F, static_cast<float>(m_width - 1));
    y = std::clamp(y, 0.0F, static_cast<float>(m_height - 1));
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const float right = x - static_cast<float>(left);
    const float down = y - static_cast<float>(top);
    const int nextLeft = std::min(left + 1, m_width - 1);
    const float* const upper = row(top);
    const float* const lower = row(std::min(top + 1, m_height - 1));
    return (1 - down) * ((1 - right) * upper[left] + right * upper[nextLeft]) +
           down * ((1 - right) * lower[left] + right * lower[nextLeft]);
}

GreyPicture GreyPicture::halved() const
{
    GreyPicture half(std::max(m_width / 2, 1), std::max(m_height / 2, 1));
    for (int y = 0; y < half.m_height; ++y) {
        const float* const upper = row(2 * y);
        const float* const lower = row(std::min(2 * y + 1, m_height - 1));
        for (int x = 0; x < half.m_width; ++x) {
            const int first = 2 * x;
            const int next = std::min(first + 1, m_width - 1);
            half.row(y)[x] = (upper[first] + upper[next] + lower[first] + lower[next]) / 4;
        }
    }
    return half;
}

/// Over three pixels each way, the middle counting double.
GreyPicture GreyPicture::softened() const
{
    GreyPicture soft(m_width, m_height);
    for (int y = 0; y < m_height; ++y) {
        const float* const rows[] = {row(std::max(y - 1, 0)), row(y), row(std::min(y + 1, m_height - 1))};
        const auto column = [&](int x) { return rows[0][x] + 2 * rows[1][x] + rows[2][x]; };
        for (int x = 0; x < m_width; ++x)
            soft.row(y)[x] =
                (column(std::max(x - 1, 0)) + 2 * column(x) + column(std::min(x + 1, m_width - 1))) / 16;
    }
    return soft;
}

GreyPicture GreyPicture::resized(int width, int height) const
{
    if (width == m_width && height == m_height)
        return *this;
    if (m_width >= 2 * width && m_height >= 2 * height)
        return halved().resized(width, height);
    // Otherwise letters would break where pixels are left out.
    constexpr double kMuchSmaller = 1.3;
    if (m_width > kMuchSmaller * width)
        return softened().stretched(width, height);
    return stretched(width, height);
}

GreyPicture GreyPicture::stretched(int width, int height) const
{
    GreyPicture result(width, height);
    const float right = static_cast<float>(m_width) / static_cast<float>(width);
    const float down = static_cast<float>(m_height) / static_cast<float>(height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            result.row(y)[x] = at((static_cast<float>(x) + 0.5F) * right - 0.5F,
                                  (static_cast<float>(y) + 0.5F) * down - 0.5F);
    }
    return result;
}

} // namespace orlen

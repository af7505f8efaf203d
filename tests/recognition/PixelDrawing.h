#pragma once

#include "platform/images/RgbImage.h"

#include <array>
#include <cstdint>
#include <random>

/// Pictures drawn pixel by pixel, for recognition to look at.
namespace orlen::PixelDrawing {

using Colour = std::array<std::uint8_t, 3>;

inline RgbImage plain(int width, int height, Colour colour)
{
    RgbImage image{width, height, {}};
    for (int i = 0; i < width * height; ++i)
        image.pixels.insert(image.pixels.end(), colour.begin(), colour.end());
    return image;
}

inline void fill(RgbImage& image, int left, int top, int width, int height, Colour colour)
{
    for (int y = top; y < top + height; ++y)
        for (int x = left; x < left + width; ++x)
            for (std::size_t c = 0; c < 3; ++c)
                image.pixels[static_cast<std::size_t>((y * image.width + x) * 3) + c] = colour[c];
}

/// A word of upright strokes with a bar across, as letters look from afar.
inline void word(RgbImage& image, int left, int top, int letters, int height, Colour ink)
{
    for (int i = 0; i < letters; ++i) {
        const int x = left + i * height * 3 / 4;
        fill(image, x, top, 2, height, ink);
        fill(image, x, top + (i % 3) * (height - 2) / 2, height / 2, 2, ink);
    }
}

/// Lines of words of changing lengths in a column.
inline void text(RgbImage& image, int left, int top, int lines, int height, Colour ink)
{
    for (int line = 0; line < lines; ++line) {
        int x = left;
        for (int letters = 3 + line * 7 % 5; x + letters * height < image.width - left;
             letters = 2 + letters * 5 % 8) {
            word(image, x, top + line * height * 2, letters, height, ink);
            x += (letters + 1) * height;
        }
    }
}

/// Light that changes softly, with the noise of a camera.
inline RgbImage scene(int width, int height)
{
    RgbImage image{width, height, {}};
    std::mt19937 random(7);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 3; ++c) {
                const int wave = 30 * ((x / 37 + y / 53 + c) % 3);
                const int light = 60 + c * 20 + wave + 70 * x / width + 40 * y / height;
                const auto noise = static_cast<int>(random() % 13);
                image.pixels.push_back(static_cast<std::uint8_t>(light - 6 + noise));
            }
    return image;
}

} // namespace orlen::PixelDrawing

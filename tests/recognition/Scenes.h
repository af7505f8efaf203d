#pragma once

#include "platform/images/RgbImage.h"

#include <functional>

/// Pictures drawn for a test: the same seed gives the same picture.
namespace orlen::Scenes {

struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// A picture without pixels: a colour, 0 to 255 each, at every point from (0, 0) to (1, 1).
using Scene = std::function<Colour(double x, double y)>;

[[nodiscard]] RgbImage painted(const Scene& scene, int width, int height);

/// Soft coloured spots with finer ones over them, as landscapes have.
[[nodiscard]] Scene spots(unsigned seed);
/// Dark strokes in lines on white; the lines are the same on every page.
[[nodiscard]] Scene page(unsigned seed);
[[nodiscard]] Scene plain(Colour colour);

/// What a part of the scene shows: from `left` and `top` on, `size` of its width and height.
[[nodiscard]] Scene cropped(const Scene& scene, double left, double top, double size);
[[nodiscard]] Scene turned(const Scene& scene, double degrees);
/// The values multiplied, and noise of at most `noise` added.
[[nodiscard]] Scene lit(const Scene& scene, Colour gains, double noise);

} // namespace orlen::Scenes

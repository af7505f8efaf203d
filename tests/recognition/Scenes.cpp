#include "recognition/Scenes.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <random>
#include <vector>

namespace orlen {

namespace {

using Scenes::Colour;
using Scenes::Scene;

struct Spot {
    double x, y, size;
    Colour colour;
};

std::uint8_t pixel(double value)
{
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

} // namespace

RgbImage Scenes::painted(const Scene& scene, int width, int height)
{
    RgbImage image{.width = width, .height = height, .pixels = {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Colour colour = scene((x + 0.5) / width, (y + 0.5) / height);
            for (const double value : {colour.red, colour.green, colour.blue})
                image.pixels.push_back(pixel(value));
        }
    }
    return image;
}

Scene Scenes::spots(unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> place(-0.1, 1.1);
    std::uniform_real_distribution<double> shade(-60, 60);
    auto spots = std::make_shared<std::vector<Spot>>();
    for (int i = 0; i < 250; ++i)
        spots->push_back({place(random),
                          place(random),
                          i < 20 ? 0.2 : 0.015,
                          {shade(random), shade(random), shade(random)}});
    return [spots](double x, double y) {
        Colour sum{128, 128, 128};
        for (const Spot& spot : *spots) {
            const double right = (x - spot.x) / spot.size;
            const double down = (y - spot.y) / spot.size;
            const double away = right * right + down * down;
            if (away > 9)
                continue;
            const double strength = std::exp(-away);
            sum.red += strength * spot.colour.red;
            sum.green += strength * spot.colour.green;
            sum.blue += strength * spot.colour.blue;
        }
        return sum;
    };
}

Scene Scenes::page(unsigned seed)
{
    constexpr std::size_t kColumns = 120;
    constexpr std::size_t kRows = 150;
    std::mt19937 random(seed);
    std::vector<bool> ink(kColumns * kRows);
    for (std::size_t y = 8; y < kRows - 8; ++y) {
        for (std::size_t x = 10; x < kColumns - 10; ++x)
            ink[y * kColumns + x] = y % 6 < 3 && random() % 2 == 0;
    }
    return [ink](double x, double y) {
        const auto column = static_cast<std::size_t>(std::clamp(x, 0.0, 0.999) * kColumns);
        const auto row = static_cast<std::size_t>(std::clamp(y, 0.0, 0.999) * kRows);
        const double value = ink[row * kColumns + column] ? 30 : 245;
        return Colour{value, value, value};
    };
}

Scene Scenes::plain(Colour colour)
{
    return [colour](double, double) { return colour; };
}

Scene Scenes::cropped(const Scene& scene, double left, double top, double size)
{
    return [=](double x, double y) { return scene(left + size * x, top + size * y); };
}

Scene Scenes::turned(const Scene& scene, double degrees)
{
    const double cosine = std::cos(degrees * std::numbers::pi / 180);
    const double sine = std::sin(degrees * std::numbers::pi / 180);
    return [=](double x, double y) {
        return scene(0.5 + cosine * (x - 0.5) - sine * (y - 0.5),
                     0.5 + sine * (x - 0.5) + cosine * (y - 0.5));
    };
}

Scene Scenes::lit(const Scene& scene, Colour gains, double noise)
{
    auto random = std::make_shared<std::mt19937>(7);
    return [=](double x, double y) {
        const Colour colour = scene(x, y);
        const double grain = noise * (static_cast<double>((*random)() % 2001) / 1000 - 1);
        return Colour{colour.red * gains.red + grain, colour.green * gains.green + grain,
                      colour.blue * gains.blue + grain};
    };
}

} // namespace orlen

#include "window/controls/AccentShades.h"

#include <algorithm>
#include <cmath>

namespace orlen {

namespace {

constexpr double kReadable = 4.5;
/// In how many steps a shade moves to black or white, until it can be read.
constexpr int kSteps = 50;
constexpr double kHoverShift = 0.10;
constexpr double kPressedShift = 0.18;

/// The surfaces with the least contrast to text: what the pointer is on, in the light and in the dark.
constexpr QRgb kLightSurface = 0xffe6e9ee;
constexpr QRgb kDarkSurface = 0xff2b313a;
constexpr QRgb kDarkCard = 0xff1d2127;
constexpr double kSoftInLight = 0.10;
constexpr double kSoftInDark = 0.22;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& colour, const QColor& other, double share)
{
    const auto channel = [share](double from, double to) {
        return static_cast<float>(std::clamp(from + (to - from) * share, 0.0, 1.0));
    };
    return QColor::fromRgbF(channel(colour.redF(), other.redF()), channel(colour.greenF(), other.greenF()),
                            channel(colour.blueF(), other.blueF()));
}

/// The shade nearest to a colour that can be read with another one, on the way to a third.
QColor readable(const QColor& colour, const QColor& with, const QColor& towards)
{
    for (int step = 0; step < kSteps; ++step) {
        const QColor shade = mixed(colour, towards, static_cast<double>(step) / kSteps);
        if (contrastOf(shade, with) >= kReadable)
            return shade;
    }
    return towards;
}

} // namespace

double contrastOf(const QColor& one, const QColor& other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

AccentShades accentShades(const QColor& colour, bool isDark)
{
    const QColor surface = QColor::fromRgb(isDark ? kDarkSurface : kLightSurface);
    AccentShades shades;
    shades.soft = isDark ? mixed(QColor::fromRgb(kDarkCard), colour, kSoftInDark)
                         : mixed(Qt::white, colour, kSoftInLight);
    shades.text = readable(colour, surface, isDark ? Qt::white : Qt::black);
    // The soft shade may come nearer to the text than any surface does.
    shades.text = readable(shades.text, shades.soft, isDark ? Qt::white : Qt::black);
    shades.fill = readable(colour, Qt::white, Qt::black);
    shades.hover = isDark ? readable(mixed(shades.fill, Qt::white, kHoverShift), Qt::white, Qt::black)
                          : mixed(shades.fill, Qt::black, kHoverShift);
    shades.pressed = mixed(shades.fill, Qt::black, kPressedShift);
    return shades;
}

} // namespace orlen

#include "recognition/LabColour.h"

#include <cmath>

namespace orlen {

namespace {

float linear(float value)
{
    const float share = value / 255;
    return share <= 0.04045F ? share / 12.92F : std::pow((share + 0.055F) / 1.055F, 2.4F);
}

float response(float share)
{
    constexpr float kLinearBelow = 216.0F / 24389.0F;
    return share > kLinearBelow ? std::cbrt(share) : (24389.0F / 27.0F * share + 16.0F) / 116.0F;
}

} // namespace

LabColour LabColour::fromRgb(float red, float green, float blue)
{
    const float r = linear(red);
    const float g = linear(green);
    const float b = linear(blue);
    const float x = response((0.4124F * r + 0.3576F * g + 0.1805F * b) / 0.9505F);
    const float y = response(0.2126F * r + 0.7152F * g + 0.0722F * b);
    const float z = response((0.0193F * r + 0.1192F * g + 0.9505F * b) / 1.0890F);
    return {.lightness = 116 * y - 16, .a = 500 * (x - y), .b = 200 * (y - z)};
}

} // namespace orlen

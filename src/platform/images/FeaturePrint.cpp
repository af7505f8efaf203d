#include "platform/images/FeaturePrint.h"

#include <algorithm>
#include <cmath>

namespace orlen {

FeaturePrint::Direction FeaturePrint::directionOf(const Vector& vector)
{
    constexpr float kMost = 127;
    const bool isFinite = std::ranges::all_of(vector, [](float number) { return std::isfinite(number); });
    float largest = 0;
    for (const float number : vector)
        largest = std::max(largest, std::abs(number));
    Direction direction{};
    if (!isFinite || largest == 0)
        return direction;
    std::ranges::transform(vector, direction.begin(), [&](float number) {
        return static_cast<std::int8_t>(std::lround(number / largest * kMost));
    });
    return direction;
}

} // namespace orlen

#include "platform/images/FeaturePrint.h"

#include <algorithm>
#include <cmath>

namespace orlen {

FeaturePrint::FeaturePrint(const Vector& vector, const Tile& tile) : m_packedTile(TileCode::packed(tile))
{
    constexpr float kMost = 127;
    const bool isFinite = std::ranges::all_of(vector, [](float number) { return std::isfinite(number); });
    float largest = 0;
    for (const float number : vector)
        largest = std::max(largest, std::abs(number));
    if (!isFinite || largest == 0)
        return;
    std::ranges::transform(vector, m_direction.begin(), [&](float number) {
        return static_cast<std::int8_t>(std::lround(number / largest * kMost));
    });
}

} // namespace orlen

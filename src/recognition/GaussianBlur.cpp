#include "recognition/GaussianBlur.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace orlen {

namespace {

/// Half of the bell including its middle, cut off at three sigma; the whole bell sums to 1.
std::vector<float> halfBell(float sigma, int side)
{
    const int reach = std::min(static_cast<int>(std::ceil(3 * sigma)), side - 1);
    std::vector<float> bell;
    float sum = 0;
    for (int i = 0; i <= reach; ++i) {
        const float at = static_cast<float>(i) / sigma;
        bell.push_back(std::exp(-0.5F * at * at));
        sum += (i == 0 ? 1.0F : 2.0F) * bell.back();
    }
    for (float& value : bell)
        value /= sum;
    return bell;
}

int mirrored(int at, int side)
{
    at = std::abs(at);
    return at < side ? at : 2 * (side - 1) - at;
}

/// Blurs along columns, whole rows at a time, and transposes the result: doing it twice covers both
/// directions.
std::vector<float> smoothedAndTurned(const std::vector<float>& plane, int side,
                                     const std::vector<float>& bell)
{
    const auto length = static_cast<std::size_t>(side);
    std::vector<float> turned(plane.size());
    std::vector<float> sum(length);
    const auto add = [&](int y, float weight) {
        const float* row = plane.data() + static_cast<std::size_t>(mirrored(y, side)) * length;
        for (std::size_t x = 0; x < length; ++x)
            sum[x] += weight * row[x];
    };
    for (int y = 0; y < side; ++y) {
        std::fill(sum.begin(), sum.end(), 0.0F);
        add(y, bell[0]);
        for (int i = 1; i < static_cast<int>(bell.size()); ++i) {
            add(y - i, bell[static_cast<std::size_t>(i)]);
            add(y + i, bell[static_cast<std::size_t>(i)]);
        }
        for (std::size_t x = 0; x < length; ++x)
            turned[x * length + static_cast<std::size_t>(y)] = sum[x];
    }
    return turned;
}

} // namespace

std::vector<float> GaussianBlur::blurred(const std::vector<float>& plane, int side, float sigma)
{
    const std::vector<float> bell = halfBell(sigma, side);
    return smoothedAndTurned(smoothedAndTurned(plane, side, bell), side, bell);
}

} // namespace orlen

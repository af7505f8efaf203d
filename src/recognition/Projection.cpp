#include "recognition/Projection.h"

#include "recognition/ProjectionMatrix.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <vector>

namespace orlen {

namespace {

constexpr std::size_t kLength = FeaturePrint::kLength;

float fromHalf(std::uint16_t half)
{
    constexpr std::uint32_t kSign = 0x8000;
    // A float has three more exponent bits, and its bias is 112 higher.
    const std::uint32_t bits = (half & kSign) << 16 | (half & ~kSign) << 13;
    return std::bit_cast<float>(bits) * 0x1p112F;
}

const std::vector<float>& matrix()
{
    static const std::vector<float> values = [] {
        std::vector<float> floats;
        for (const std::uint16_t half : ProjectionMatrix::values())
            floats.push_back(fromHalf(half));
        return floats;
    }();
    return values;
}

} // namespace

FeaturePrint::Vector Projection::project(const LayoutDescriptor::Vector& descriptor)
{
    const float* row = matrix().data();
    FeaturePrint::Vector vector{};
    const auto add = [&](float value) {
        for (std::size_t i = 0; i < kLength; ++i)
            vector[i] += value * row[i];
        row += kLength;
    };
    std::for_each(descriptor.begin(), descriptor.end(), add);
    add(1);
    const float length = std::sqrt(std::inner_product(vector.begin(), vector.end(), vector.begin(), 0.0F));
    for (float& value : vector)
        value /= std::max(length, 1e-6F);
    return vector;
}

} // namespace orlen

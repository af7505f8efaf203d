#include "scan/photos/PrintDistance.h"

#include "scan/photos/FineCheck.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace orlen {

namespace {

constexpr float kPlainCoarseLimit = 0.40F; ///< when there is nothing fine to compare
constexpr float kLeastAgreement = 0.69F;

/// Between unit vectors of directions with these products; as far as can be for what is no direction.
float between(std::int32_t oneOther, std::int32_t oneOne, std::int32_t otherOther)
{
    constexpr float kOpposite = 2;
    const std::int64_t squares = std::int64_t{oneOne} * otherOther;
    if (squares == 0)
        return kOpposite;
    const double cosine = oneOther / std::sqrt(static_cast<double>(squares));
    return static_cast<float>(std::sqrt(std::max(2 - 2 * cosine, 0.0)));
}

float between(const FeaturePrint::Direction& one, const FeaturePrint::Direction& other)
{
    return between(product(one, other), product(one, one), product(other, other));
}

std::optional<float> ifNear(float coarse)
{
    return coarse < kCoarseLimit ? std::optional(coarse) : std::nullopt;
}

float fineDistance(float coarse, std::optional<float> agreement)
{
    if (!agreement)
        return kNearDuplicateLimit * coarse / kPlainCoarseLimit;
    const float fine = (1 - *agreement) / (1 - kLeastAgreement);
    return kNearDuplicateLimit * std::max(coarse / kCoarseLimit, fine);
}

} // namespace

float distance(const FeaturePrint& one, const FeaturePrint& other)
{
    const float coarse = between(one.direction(), other.direction());
    if (coarse >= kCoarseLimit)
        return kNearDuplicateLimit * coarse / kCoarseLimit;
    return fineDistance(coarse, FineCheck::agreement(one.tile(), other.tile()));
}

bool areAlike(float coarse, const FeaturePrint::Tile& one, const FeaturePrint::Tile& other)
{
    return fineDistance(coarse, FineCheck::agreement(one, other, kLeastAgreement)) < kNearDuplicateLimit;
}

std::optional<float> coarseDistance(const FeaturePrint::Direction& one, const FeaturePrint::Direction& other)
{
    return ifNear(between(one, other));
}

std::optional<float> coarseDistance(std::int32_t oneOther, std::int32_t oneOne, std::int32_t otherOther)
{
    return ifNear(between(oneOther, oneOne, otherOther));
}

std::int32_t product(const FeaturePrint::Direction& one, const FeaturePrint::Direction& other)
{
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < FeaturePrint::kLength; ++i)
        sum += std::int32_t{one[i]} * other[i];
    return sum;
}

} // namespace orlen

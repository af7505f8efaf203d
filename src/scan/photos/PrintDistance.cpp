#include "scan/photos/PrintDistance.h"

#include "scan/photos/FineCheck.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orlen {

namespace {

constexpr float kNearDuplicate = 0.32F;
constexpr float kCoarseLimit = 0.80F;      ///< between vectors of length 1
constexpr float kPlainCoarseLimit = 0.40F; ///< when there is nothing fine to compare
constexpr float kLeastAgreement = 0.70F;

/// Eight sums side by side, which the compiler keeps in vector registers.
float between(const FeaturePrint::Vector& one, const FeaturePrint::Vector& other)
{
    constexpr std::size_t kLanes = 8;
    std::array<float, kLanes> sums{};
    for (std::size_t i = 0; i < FeaturePrint::kLength; i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            const float difference = one[i + lane] - other[i + lane];
            sums[lane] += difference * difference;
        }
    }
    float sum = 0;
    for (const float lane : sums)
        sum += lane;
    return std::sqrt(sum);
}

} // namespace

float distance(const FeaturePrint& one, const FeaturePrint& other)
{
    const float coarse = between(one.vector(), other.vector());
    if (coarse >= kCoarseLimit)
        return kNearDuplicate * coarse / kCoarseLimit;
    const std::optional<float> agreement = FineCheck::agreement(one.tile(), other.tile());
    if (!agreement)
        return kNearDuplicate * coarse / kPlainCoarseLimit;
    const float fine = (1 - *agreement) / (1 - kLeastAgreement);
    return kNearDuplicate * std::max(coarse / kCoarseLimit, fine);
}

std::optional<float> coarseDistance(const FeaturePrint& one, const FeaturePrint& other)
{
    const float coarse = between(one.vector(), other.vector());
    return coarse < kCoarseLimit ? std::optional(coarse) : std::nullopt;
}

} // namespace orlen

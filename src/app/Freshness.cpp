#include "app/Freshness.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

namespace orlen {

namespace {

constexpr std::chrono::hours kOld{24};
/// A change of free space counts from this many bytes, and from this part of the volume.
constexpr std::int64_t kLeastChange = 2'000'000'000;
constexpr std::int64_t kLeastPart = 100;

bool hasChanged(const ScanMoment& then, const ScanMoment& now)
{
    if (then.free == 0 || now.free == 0)
        return false;
    return std::abs(now.free - then.free) >= std::max(kLeastChange, now.total / kLeastPart);
}

} // namespace

Freshness freshness(const ScanMoment& then, const ScanMoment& now)
{
    if (now.largeThreshold != then.largeThreshold)
        return Freshness::otherThreshold;
    if (now.time - then.time >= kOld)
        return Freshness::old;
    return hasChanged(then, now) ? Freshness::diskChanged : Freshness::fresh;
}

} // namespace orlen

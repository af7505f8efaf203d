#include "platform/values/CheckedSum.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace orlen {

void fatalError(std::string_view message)
{
    std::fprintf(stderr, "orlen: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

std::int64_t checkedAdd(std::int64_t a, std::int64_t b)
{
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        fatalError("a sum of sizes does not fit into 64 bits");
    return sum;
}

std::int64_t checkedSubtract(std::int64_t a, std::int64_t b)
{
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(a, b, &difference))
        fatalError("a difference of sizes does not fit into 64 bits");
    return difference;
}

std::int64_t checkedInteger(double value)
{
    // 2^63 is exact as a double; everything below it and not below -2^63 fits.
    constexpr double kLimit = 9'223'372'036'854'775'808.0;
    if (!std::isfinite(value) || value >= kLimit || value < -kLimit)
        fatalError("a number does not fit into 64 bits");
    return static_cast<std::int64_t>(value);
}

} // namespace orlen

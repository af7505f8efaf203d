#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// In front of a function that is compiled for processors with lanes of 256 bits (AVX2), beside one for all
/// processors. It may only be called if `WideLanes::areUsed()`. What it calls is compiled so only if it is
/// inlined, `ORLEN_INLINE`. It must come to the same bits.
#ifdef __x86_64__
#define ORLEN_WIDE [[gnu::target("avx2,bmi,bmi2,popcnt")]]
#else
#define ORLEN_WIDE
#endif
#define ORLEN_INLINE [[gnu::always_inline]] inline

/// Any thread.
namespace orlen::WideLanes {

/// Whether the processor has them, and nothing is to be done without.
[[nodiscard]] bool areUsed();

/// As on a processor without them, as long as it lives: to compare what comes out, and the times.
class Without {
public:
    Without();
    ~Without();
    Without(const Without&) = delete;
    Without& operator=(const Without&) = delete;
};

/// Whether a comparison holds in any of the lanes.
template <typename Ints>
ORLEN_INLINE bool isAnySet(const Ints& lanes)
{
    std::array<std::uint64_t, sizeof lanes / sizeof(std::uint64_t)> parts{};
    std::memcpy(parts.data(), &lanes, sizeof lanes);
    std::uint64_t any = 0;
    for (const std::uint64_t part : parts)
        any |= part;
    return any != 0;
}

} // namespace orlen::WideLanes

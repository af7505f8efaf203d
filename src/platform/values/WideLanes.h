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
/// Likewise with lanes of 512 bits (AVX-512 and some of what came after it), for `Width::widest`. It pays
/// where one instruction does what takes several in others; where loads are what takes the time, it does not.
/// Numbers with fractions come to the same bits only in a source that is compiled with `-ffp-contract=off`.
#define ORLEN_WIDEST                                                                                         \
    [[gnu::target("avx2,bmi,bmi2,popcnt,avx512f,avx512bw,avx512vbmi,avx512vnni,avx512vpopcntdq")]]
#else
#define ORLEN_WIDE
#define ORLEN_WIDEST
#endif
#define ORLEN_INLINE [[gnu::always_inline]] inline

/// Any thread.
namespace orlen::WideLanes {

enum class Width : std::uint8_t { narrow, wide, widest };

/// Of the processor's lanes, unless something is to be done without.
[[nodiscard]] Width width();

[[nodiscard]] inline bool areUsed()
{
    return width() != Width::narrow;
}

/// As on a processor without lanes of that width, as long as it lives: to compare what comes out, and the
/// times.
class Without {
public:
    explicit Without(Width lanes = Width::wide);
    ~Without();
    Without(const Without&) = delete;
    Without& operator=(const Without&) = delete;

private:
    Width m_before;
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

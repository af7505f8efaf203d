#include "platform/values/WideLanes.h"

#include <algorithm>
#include <atomic>

namespace orlen {

using WideLanes::Width;

namespace {

Width widthThere()
{
#ifdef __x86_64__
    const bool isWide = __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("bmi") != 0 &&
                        __builtin_cpu_supports("bmi2") != 0 && __builtin_cpu_supports("popcnt") != 0;
    if (!isWide)
        return Width::narrow;
    const bool isWidest = __builtin_cpu_supports("avx512f") != 0 && __builtin_cpu_supports("avx512bw") != 0 &&
                          __builtin_cpu_supports("avx512vbmi") != 0 &&
                          __builtin_cpu_supports("avx512vnni") != 0 &&
                          __builtin_cpu_supports("avx512vpopcntdq") != 0;
    return isWidest ? Width::widest : Width::wide;
#else
    return Width::narrow;
#endif
}

std::atomic<Width> most{Width::widest};

} // namespace

Width WideLanes::width()
{
    static const Width has = widthThere();
    return std::min(has, most.load(std::memory_order_relaxed));
}

WideLanes::Without::Without(Width lanes) : m_before(most.load())
{
    most = std::min(m_before, lanes == Width::widest ? Width::wide : Width::narrow);
}

WideLanes::Without::~Without()
{
    most = m_before;
}

} // namespace orlen

#include "platform/values/WideLanes.h"

#include <atomic>

namespace orlen {

namespace {

bool areThere()
{
#ifdef __x86_64__
    return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("bmi") != 0 &&
           __builtin_cpu_supports("bmi2") != 0 && __builtin_cpu_supports("popcnt") != 0;
#else
    return false;
#endif
}

std::atomic<int> doneWithout{0};

} // namespace

bool WideLanes::areUsed()
{
    static const bool has = areThere();
    return has && doneWithout.load(std::memory_order_relaxed) == 0;
}

WideLanes::Without::Without()
{
    ++doneWithout;
}

WideLanes::Without::~Without()
{
    --doneWithout;
}

} // namespace orlen

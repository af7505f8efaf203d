#include "cli/Bar.h"

#include <algorithm>
#include <cmath>

namespace orlen::Bar {

namespace {

constexpr long kLength = 30;

} // namespace

std::string text(std::int64_t part, std::int64_t whole)
{
    if (part <= 0 || whole <= 0)
        return {};
    const double share = static_cast<double>(part) / static_cast<double>(whole);
    const long length = std::clamp(std::lround(share * kLength), 1L, kLength);
    std::string bar;
    for (long i = 0; i < length; ++i)
        bar += "█";
    return bar;
}

} // namespace orlen::Bar

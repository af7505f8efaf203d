#include "window/diskmap/TileShade.h"

#include <array>
#include <chrono>
#include <cstddef>

namespace orlen::TileShade {

namespace {

constexpr std::array<std::chrono::days, 4> kAges{std::chrono::days(7), std::chrono::days(30),
                                                 std::chrono::days(365), std::chrono::days(730)};
constexpr std::array<std::int64_t, 3> kGrowths{10'000'000, 100'000'000, 1'000'000'000};
constexpr auto kFirstGrowth = static_cast<std::size_t>(Growth::some);

} // namespace

Age ageOf(const std::optional<TimePoint>& newest, TimePoint now)
{
    if (!newest)
        return Age::unknown;
    std::size_t step = 0;
    while (step < kAges.size() && now - *newest > kAges[step])
        ++step;
    return static_cast<Age>(step);
}

Growth growthOf(std::optional<std::int64_t> bytes)
{
    if (!bytes)
        return Growth::unknown;
    if (*bytes <= -kGrowths.front())
        return Growth::less;
    std::size_t step = 0;
    while (step < kGrowths.size() && *bytes >= kGrowths[step])
        ++step;
    return static_cast<Growth>(static_cast<std::size_t>(Growth::same) + step);
}

std::int64_t leastOf(Growth growth)
{
    return kGrowths[static_cast<std::size_t>(growth) - kFirstGrowth];
}

Advice adviceOf(std::optional<Rating> rating)
{
    return rating ? static_cast<Advice>(*rating) : Advice::unknown;
}

} // namespace orlen::TileShade

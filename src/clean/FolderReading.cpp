#include "clean/FolderReading.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace orlen::FolderReadings {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::weeks;

constexpr days kAllKept{7};
constexpr days kDailyKept{31};
constexpr days kWeeklyKept{731};
constexpr std::ptrdiff_t kFew = 3;

/// Of the readings of one slot only the last is kept. Nothing for a reading that is kept anyway. A reading's
/// slot only ever becomes wider, so the same ones remain however often this is asked.
std::optional<TimePoint> slotOf(TimePoint date, TimePoint now)
{
    if (now - date <= kAllKept)
        return std::nullopt;
    return now - date <= kDailyKept ? TimePoint(floor<days>(date)) : TimePoint(floor<weeks>(date));
}

} // namespace

void add(std::vector<FolderReading>& readings, FolderReading newest)
{
    const TimePoint now = newest.date;
    const auto future = std::ranges::upper_bound(readings, now, {}, &FolderReading::date);
    if (readings.end() - future > kFew)
        return;
    readings.erase(future, readings.end());
    std::erase_if(readings, [&](const FolderReading& reading) { return now - reading.date > kWeeklyKept; });
    std::vector<FolderReading> kept;
    for (FolderReading& reading : readings) {
        const auto slot = slotOf(reading.date, now);
        if (slot && !kept.empty() && slotOf(kept.back().date, now) == slot)
            kept.back() = std::move(reading);
        else
            kept.push_back(std::move(reading));
    }
    kept.push_back(std::move(newest));
    if (kept.size() > kMost)
        kept.erase(kept.begin(), kept.end() - kMost);
    readings = std::move(kept);
}

} // namespace orlen::FolderReadings

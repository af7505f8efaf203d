#pragma once

#include "model/Rating.h"
#include "model/Text.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>

/// The steps of what the colour of a tile can tell, in the order of the legend; the last of each is that of
/// which nothing is known. Pure; any thread.
namespace orlen::TileShade {

/// How long ago a file last changed.
enum class Age { week, month, year, twoYears, older, unknown };
/// Of no time nothing is known; a time in the future counts as now.
[[nodiscard]] Age ageOf(const std::optional<TimePoint>& newest, TimePoint now);

/// What a folder gained: 10, 100 or 1,000 million bytes or more; less either way is `same`.
enum class Growth { less, same, some, much, most, unknown };
[[nodiscard]] Growth growthOf(std::optional<std::int64_t> bytes);
/// The least that a folder of these steps gained, in bytes: `some`, `much` and `most` only.
[[nodiscard]] std::int64_t leastOf(Growth growth);

enum class Advice { safe, review, keep, isProtected, unknown };
[[nodiscard]] Advice adviceOf(std::optional<Rating> rating);

} // namespace orlen::TileShade

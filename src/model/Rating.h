#pragma once

#include "model/Text.h"

#include <string_view>

namespace orlen {

/// What Orlen advises about a finding or an entry.
enum class Rating { safe, review, keep };

/// The case's name as stored on disk: "safe", "review", "keep".
[[nodiscard]] std::string_view rawValue(Rating rating);

/// The word on the rating chip: "Safe", "Review", "Keep".
[[nodiscard]] Text label(Rating rating);
/// Symbol name of the rating chip.
[[nodiscard]] std::string_view symbol(Rating rating);

} // namespace orlen

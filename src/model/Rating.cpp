#include "model/Rating.h"

#include <array>
#include <cstddef>

namespace orlen {

namespace {

struct RatingRow {
    std::string_view raw;
    Text label;
    std::string_view symbol;
};

/// In the order of the enumeration.
constexpr std::array kRatingRows{
    RatingRow{"safe", message("Safe"), "checkmark.shield.fill"},
    RatingRow{"review", message("Review"), "eye.fill"},
    RatingRow{"keep", message("Keep"), "lock.fill"},
};

const RatingRow& row(Rating rating)
{
    return kRatingRows[static_cast<std::size_t>(rating)];
}

} // namespace

std::string_view rawValue(Rating rating)
{
    return row(rating).raw;
}

Text label(Rating rating)
{
    return row(rating).label;
}

std::string_view symbol(Rating rating)
{
    return row(rating).symbol;
}

} // namespace orlen

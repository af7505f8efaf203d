#include "model/OrlenCategory.h"

#include <cstddef>

namespace orlen {

namespace {

struct CategoryRow {
    std::string_view raw;
    Text label;
    CategoryColour colour;
};

/// In the order of the enumeration.
constexpr std::array kCategoryRows{
    CategoryRow{"apps", message("Apps"), {0.25, 0.52, 1.0}},
    CategoryRow{"photos", message("Photos"), {1.0, 0.38, 0.55}},
    CategoryRow{"media", message("Media"), {0.68, 0.4, 0.95}},
    CategoryRow{"documents", message("Documents"), {1.0, 0.62, 0.2}},
    CategoryRow{"developer", message("Developer"), {0.2, 0.78, 0.5}},
    CategoryRow{"system", message("System"), {0.55, 0.58, 0.64}},
    CategoryRow{"caches", message("Caches"), {0.22, 0.76, 0.86}},
};
static_assert(kCategoryRows.size() == kAllCategories.size());

const CategoryRow& row(OrlenCategory category)
{
    return kCategoryRows[static_cast<std::size_t>(category)];
}

} // namespace

std::string_view rawValue(OrlenCategory category)
{
    return row(category).raw;
}

Text label(OrlenCategory category)
{
    return row(category).label;
}

CategoryColour colour(OrlenCategory category)
{
    return row(category).colour;
}

} // namespace orlen

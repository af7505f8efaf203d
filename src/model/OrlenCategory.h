#pragma once

#include "model/Text.h"

#include <array>
#include <string_view>

namespace orlen {

/// Storage categories in display order. Keys of the storage breakdown and the snapshots.
enum class OrlenCategory { apps, photos, media, documents, developer, system, caches };

inline constexpr std::array kAllCategories{
    OrlenCategory::apps,      OrlenCategory::photos, OrlenCategory::media, OrlenCategory::documents,
    OrlenCategory::developer, OrlenCategory::system, OrlenCategory::caches};

/// sRGB components from 0 to 1.
struct CategoryColour {
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// The case's name as stored on disk.
[[nodiscard]] std::string_view rawValue(OrlenCategory category);
[[nodiscard]] Text label(OrlenCategory category);
[[nodiscard]] CategoryColour colour(OrlenCategory category);

} // namespace orlen

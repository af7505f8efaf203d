#pragma once

#include "model/OrlenCategory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// A folder, or a single file, that counts for a storage category.
struct CategoryFolder {
    struct Item {
        std::string name;
        std::int64_t bytes = 0;
        bool isFolder = true;

        friend bool operator==(const Item&, const Item&) = default;
    };

    OrlenCategory category = OrlenCategory::system;
    std::string path;       ///< in the form all rules compare
    std::int64_t bytes = 0; ///< without the folders in it that count for themselves
    /// The largest items directly in it, largest first, at most 5. Only names that are UTF-8.
    std::vector<Item> largest;
    bool isComplete = true; ///< false if something in it could not be read

    friend bool operator==(const CategoryFolder&, const CategoryFolder&) = default;
};

} // namespace orlen

#pragma once

#include "model/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

class TreeListing;

/// Folders that a program makes again, known by their name and by what lies beside them: a walk would not
/// enter them, or could not tell them from others.
namespace ProjectCaches {

struct Cache {
    std::string name; ///< of a real folder in the listing
    Text note;        ///< for its entry
    friend bool operator==(const Cache&, const Cache&) = default;
};

/// Whether films are edited around here: some names mean a cache only there.
enum class Films { no, yes };

/// The caches directly in a folder, none of them an environment or a work tree. Looks at the disk only if a
/// name is among those known. Any thread.
[[nodiscard]] std::vector<Cache> in(const TreeListing& listing, Films films);

/// Whether a cache may have this name. Pure.
[[nodiscard]] bool isKnownName(std::string_view name);

} // namespace ProjectCaches
} // namespace orlen

#pragma once

#include "model/RaterTables.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

struct Places;

/// The Rater's known places as paths in this home folder, wherever variables and packaging put them.
///
/// A row's `where` names a place in words of `Places::expand`; "*" matches any number of bytes within one
/// component, and the row applies to the place and everything below it. {CACHE} at the start covers every
/// cache folder, including those of sandboxed applications. A `where` that starts with "*" may match anywhere
/// in a path.
///
/// Immutable; any thread. Never touches the disk.
class KnownPlaces {
public:
    explicit KnownPlaces(const Places& places);

    /// The first row whose place is or contains the path; null if there is none.
    [[nodiscard]] const RaterTables::KnownLocation* holding(std::string_view path) const;

private:
    /// One way to spell a row's place.
    struct Place {
        const RaterTables::KnownLocation* row;
        std::string folder;                    ///< literal; empty: anywhere
        std::vector<std::string_view> pattern; ///< the components below it
    };

    void add(const RaterTables::KnownLocation& row, std::string folder, std::string_view pattern);

    std::vector<Place> m_places; ///< in the order of the rows
};

} // namespace orlen

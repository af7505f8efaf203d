#pragma once

#include "model/RaterTables.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

struct Places;

/// The Rater's known places in this home folder, wherever variables and packaging put them.
///
/// A row's `where` names a place in words of `Places::expand`; "*" stands for any run of bytes within one
/// component, and the row holds for the place and everything below it. {CACHE} at the start stands for every
/// cache folder: those of the desktop and those that sandboxed applications have of their own. A `where` that
/// starts with "*" is not bound to a folder: its components may stand anywhere in a path.
///
/// Immutable; any thread. Never touches the disk.
class KnownPlaces {
public:
    explicit KnownPlaces(const Places& places);

    /// The first row whose place is the path or holds it; null when there is none.
    [[nodiscard]] const RaterTables::KnownLocation* holding(std::string_view path) const;

private:
    /// One spelling of a row's place.
    struct Place {
        const RaterTables::KnownLocation* row;
        std::string folder;                    ///< taken literally; empty: anywhere
        std::vector<std::string_view> pattern; ///< the components below it
    };

    void add(const RaterTables::KnownLocation& row, std::string folder, std::string_view pattern);

    std::vector<Place> m_places; ///< in the order of the rows
};

} // namespace orlen

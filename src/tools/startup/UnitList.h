#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// A unit file as the service manager lists it.
struct ListedUnit {
    std::string name;
    std::string state; ///< the manager's word: "enabled", "masked", "static" …
    friend bool operator==(const ListedUnit&, const ListedUnit&) = default;
};

/// The manager's list of unit files as a JSON document. Untrusted input; pure.
namespace UnitList {

/// The units in the document's order; elements that are no unit are left out. Nothing when the text is not
/// JSON, is no array or nests deeper than any such list.
[[nodiscard]] std::optional<std::vector<ListedUnit>> parsed(std::string_view text);

} // namespace UnitList
} // namespace orlen

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// A unit file as systemd lists it.
struct ListedUnit {
    std::string name;
    std::string state; ///< systemd's word: "enabled", "masked", "static" …
    friend bool operator==(const ListedUnit&, const ListedUnit&) = default;
};

/// systemd's list of unit files as JSON. Untrusted input; pure.
namespace UnitList {

/// The units in document order; elements that are not units are left out. Nothing if the text is not JSON,
/// not an array, or nests too deep.
[[nodiscard]] std::optional<std::vector<ListedUnit>> parsed(std::string_view text);

} // namespace UnitList
} // namespace orlen

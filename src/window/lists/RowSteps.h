#pragma once

#include <span>
#include <string>
#include <vector>

namespace orlen {

/// One change of a list; row numbers refer to the list as earlier steps left it.
struct RowStep {
    enum class Kind {
        remove, ///< removes `count` rows starting at `row`
        insert, ///< inserts the wanted list's rows of the same numbers, `count` from `row` on
        move,   ///< moves the row up to `to`
    };

    Kind kind = Kind::remove;
    int row = 0;
    int count = 1;
    int to = 0;

    friend bool operator==(const RowStep&, const RowStep&) = default;
};

/// Turns one list into another without replacing the rows they share, so that a view keeps its scroll
/// position, focus and open rows. Pure; any thread.
namespace RowSteps {

/// Takes the rows' keys. A repeated key counts as separate rows.
[[nodiscard]] std::vector<RowStep> between(std::span<const std::string> shown,
                                           std::span<const std::string> wanted);

} // namespace RowSteps
} // namespace orlen

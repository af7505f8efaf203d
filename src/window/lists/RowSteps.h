#pragma once

#include <span>
#include <string>
#include <vector>

namespace orlen {

/// One change of a list, counted in the list as the steps before it have left it.
struct RowStep {
    enum class Kind {
        remove, ///< `count` rows from `row` on go
        insert, ///< `count` rows come to stand from `row` on: those of the same numbers in the wanted list
        move,   ///< the row goes to `to`, further up
    };

    Kind kind = Kind::remove;
    int row = 0;
    int count = 1;
    int to = 0; ///< of a move

    friend bool operator==(const RowStep&, const RowStep&) = default;
};

/// How a list becomes another one while the rows that both have stay themselves, so that a view keeps its
/// place, its focus and what is open in it. Pure; any thread.
namespace RowSteps {

/// Takes the rows' keys. A key that stands twice in a list counts as two rows.
[[nodiscard]] std::vector<RowStep> between(std::span<const std::string> shown,
                                           std::span<const std::string> wanted);

} // namespace RowSteps
} // namespace orlen

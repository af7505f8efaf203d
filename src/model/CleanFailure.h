#pragma once

#include "model/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Why an item was not moved to the Trash or back.
enum class FailureReason {
    isProtected, ///< the rules forbid it
    excluded,    ///< the user forbids it
    keptOfSet,   ///< the file that stays of a set, of which others move
    missing,     ///< nothing is there
    changed,     ///< not what was shown: replaced, written to, or the copy to be kept is gone
    permission,  ///< the system refuses
    full,        ///< no space for the bookkeeping of the move
    noTrash,     ///< its disk has no usable Trash
    inUse,       ///< a program is writing to it
    occupied,    ///< restoring: something is at the original place
    replaced,    ///< restoring: the name in the Trash now belongs to something else
    other,
};

/// The name used in JSON: "protected" (also for what is excluded, or kept of a set), "missing", "changed" and
/// so on.
[[nodiscard]] std::string_view rawValue(FailureReason reason);
/// The reason in a few words, shown after a path.
[[nodiscard]] Text reasonText(FailureReason reason);
/// What the user can do about it, as a sentence; empty if nothing.
[[nodiscard]] Text remedyText(FailureReason reason);

/// An item that a clean-up or restore did not move.
struct CleanFailure {
    std::string path; ///< where it is (clean-up) or was (restore)
    FailureReason reason = FailureReason::other;

    friend bool operator==(const CleanFailure&, const CleanFailure&) = default;
};

} // namespace orlen

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Why an item was not moved to the Trash or back.
enum class FailureReason {
    isProtected, ///< the rules forbid it
    missing,     ///< nothing is there
    changed,     ///< not what was shown: replaced, written to, or the copy that was to be kept is gone
    permission,  ///< the system refuses
    full,        ///< no room for the bookkeeping of the move
    noTrash,     ///< its disk has no Trash that can be used
    inUse,       ///< a program is writing to it
    occupied,    ///< restoring: something stands at the original place
    replaced,    ///< restoring: the name in the Trash belongs to something else by now
    other,
};

/// The name in documents: "protected", "missing", "changed" and so on.
[[nodiscard]] std::string_view rawValue(FailureReason reason);
/// The reason in a few words, to stand behind a path.
[[nodiscard]] std::string_view reasonText(FailureReason reason);
/// What a person can do about it, a whole sentence; empty when there is nothing to do.
[[nodiscard]] std::string_view remedyText(FailureReason reason);

/// An item of a clean-up or a restore that stayed where it was.
struct CleanFailure {
    std::string path; ///< where it is (clean-up) or was (restore)
    FailureReason reason = FailureReason::other;

    friend bool operator==(const CleanFailure&, const CleanFailure&) = default;
};

} // namespace orlen

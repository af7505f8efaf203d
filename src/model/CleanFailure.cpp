#include "model/CleanFailure.h"

#include <algorithm>
#include <array>

namespace orlen {

namespace {

struct Cause {
    FailureReason reason;
    std::string_view rawValue;
    Text text;
    Text remedy;
};

constexpr std::array<Cause, 12> kCauses{{
    {FailureReason::isProtected, "protected", message("protected"),
     message("Orlen leaves this alone, to be on the safe side.")},
    {FailureReason::excluded, "protected", message("excluded by you"),
     message("Remove it from the exclusions first.")},
    {FailureReason::keptOfSet, "protected", message("kept, as its copies move"),
     message("One file of each set stays. Move it instead of its copies, if you like.")},
    {FailureReason::missing, "missing", message("no longer there"), {}},
    {FailureReason::changed, "changed", message("changed since the scan"),
     message("Scan again to see what is there now.")},
    {FailureReason::permission, "permission", message("no permission"),
     message("It belongs to another user, or its folder may not be changed.")},
    {FailureReason::full, "full", message("disk full"),
     message("Empty the Trash to make room, then try again.")},
    {FailureReason::noTrash, "noTrash", message("no Trash on that disk"),
     message("Move it by hand if you no longer need it.")},
    {FailureReason::inUse, "inUse", message("in use"),
     message("Quit the program that uses it, then try again.")},
    {FailureReason::occupied, "occupied", message("something is at the original place"),
     message("Move or rename what is there, then try again.")},
    {FailureReason::replaced, "replaced", message("something else has this name in the Trash"), {}},
    {FailureReason::other, "other", message("the system refused"), message("Try again, or move it by hand.")},
}};

const Cause& causeOf(FailureReason reason)
{
    const auto* found = std::ranges::find(kCauses, reason, &Cause::reason);
    return found == kCauses.end() ? kCauses.back() : *found;
}

} // namespace

std::string_view rawValue(FailureReason reason)
{
    return causeOf(reason).rawValue;
}

Text reasonText(FailureReason reason)
{
    return causeOf(reason).text;
}

Text remedyText(FailureReason reason)
{
    return causeOf(reason).remedy;
}

} // namespace orlen

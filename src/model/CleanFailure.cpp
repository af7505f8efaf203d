#include "model/CleanFailure.h"

namespace orlen {

std::string_view rawValue(FailureReason reason)
{
    switch (reason) {
    case FailureReason::isProtected:
    case FailureReason::excluded:
        return "protected";
    case FailureReason::missing:
        return "missing";
    case FailureReason::changed:
        return "changed";
    case FailureReason::permission:
        return "permission";
    case FailureReason::full:
        return "full";
    case FailureReason::noTrash:
        return "noTrash";
    case FailureReason::inUse:
        return "inUse";
    case FailureReason::occupied:
        return "occupied";
    case FailureReason::replaced:
        return "replaced";
    case FailureReason::other:
        return "other";
    }
    return "other";
}

Text reasonText(FailureReason reason)
{
    switch (reason) {
    case FailureReason::isProtected:
        return message("protected");
    case FailureReason::excluded:
        return message("excluded by you");
    case FailureReason::missing:
        return message("no longer there");
    case FailureReason::changed:
        return message("changed since the scan");
    case FailureReason::permission:
        return message("no permission");
    case FailureReason::full:
        return message("disk full");
    case FailureReason::noTrash:
        return message("no Trash on that disk");
    case FailureReason::inUse:
        return message("in use");
    case FailureReason::occupied:
        return message("something is at the original place");
    case FailureReason::replaced:
        return message("something else has this name in the Trash");
    case FailureReason::other:
        return message("the system refused");
    }
    return {};
}

Text remedyText(FailureReason reason)
{
    switch (reason) {
    case FailureReason::excluded:
        return message("Remove it from the exclusions first.");
    case FailureReason::changed:
        return message("Scan again to see what is there now.");
    case FailureReason::permission:
        return message("It belongs to another user, or its folder may not be changed.");
    case FailureReason::full:
        return message("Empty the Trash to make room, then try again.");
    case FailureReason::noTrash:
        return message("Move it by hand if you no longer need it.");
    case FailureReason::inUse:
        return message("Quit the program that uses it, then try again.");
    case FailureReason::occupied:
        return message("Move or rename what is there, then try again.");
    case FailureReason::isProtected:
    case FailureReason::missing:
    case FailureReason::replaced:
    case FailureReason::other:
        return {};
    }
    return {};
}

} // namespace orlen

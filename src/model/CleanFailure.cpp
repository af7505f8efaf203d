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

std::string_view reasonText(FailureReason reason)
{
    switch (reason) {
    case FailureReason::isProtected:
        return "protected";
    case FailureReason::excluded:
        return "excluded by you";
    case FailureReason::missing:
        return "no longer there";
    case FailureReason::changed:
        return "changed since the scan";
    case FailureReason::permission:
        return "no permission";
    case FailureReason::full:
        return "disk full";
    case FailureReason::noTrash:
        return "no Trash on that disk";
    case FailureReason::inUse:
        return "in use";
    case FailureReason::occupied:
        return "something is at the original place";
    case FailureReason::replaced:
        return "something else has this name in the Trash";
    case FailureReason::other:
        return "the system refused";
    }
    return "";
}

std::string_view remedyText(FailureReason reason)
{
    switch (reason) {
    case FailureReason::excluded:
        return "Remove it from the exclusions first.";
    case FailureReason::changed:
        return "Scan again to see what is there now.";
    case FailureReason::permission:
        return "It belongs to another user, or its folder may not be changed.";
    case FailureReason::full:
        return "Empty the Trash to make room, then try again.";
    case FailureReason::noTrash:
        return "Move it by hand if you no longer need it.";
    case FailureReason::inUse:
        return "Quit the program that uses it, then try again.";
    case FailureReason::occupied:
        return "Move or rename what is there, then try again.";
    case FailureReason::isProtected:
    case FailureReason::missing:
    case FailureReason::replaced:
    case FailureReason::other:
        return "";
    }
    return "";
}

} // namespace orlen

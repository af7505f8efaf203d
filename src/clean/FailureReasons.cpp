#include "clean/FailureReasons.h"

#include <cerrno>

namespace orlen::FailureReasons {

FailureReason ofCleaning(int error)
{
    switch (error) {
    case EPERM:
        return FailureReason::isProtected;
    case ENOENT:
    case ENOTDIR:
        return FailureReason::missing;
    case ESTALE:
        return FailureReason::changed;
    case EACCES:
    case EROFS:
        return FailureReason::permission;
    case ENOSPC:
    case EDQUOT:
        return FailureReason::full;
    case EXDEV:
        return FailureReason::noTrash;
    case EBUSY:
    case ETXTBSY:
        return FailureReason::inUse;
    default:
        return FailureReason::other;
    }
}

FailureReason ofRestoring(int error)
{
    switch (error) {
    case EEXIST:
        return FailureReason::occupied;
    case ESTALE:
        return FailureReason::replaced;
    default:
        return ofCleaning(error);
    }
}

} // namespace orlen::FailureReasons

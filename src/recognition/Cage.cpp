#include "recognition/Cage.h"

#include "platform/files/FileRights.h"
#include "platform/process/ProcessLimits.h"
#include "recognition/SystemCallFilter.h"

namespace orlen::Cage {

// There is no limit on the number of processes: it would count the user's threads, its own among them.
int lock()
{
#ifdef ORLEN_SANITIZED
    // A sanitizer looks at its own process and reports with calls that no decoder needs.
    return FileRights::giveUp(FileRights::Exception::processTable);
#else
    ProcessLimits::hideMemory();
    const int landlock = FileRights::giveUp();
    (void)SystemCallFilter::apply(); // Without it, the rest still holds.
    return landlock;
#endif
}

} // namespace orlen::Cage

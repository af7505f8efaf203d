#include "recognition/Cage.h"

#include "platform/files/FileRights.h"
#include "platform/process/ProcessLimits.h"
#include "recognition/SystemCallFilter.h"

namespace orlen::Cage {

// The number of processes is not limited: that would count the user's threads, including its own.
int lock(RecognizerRole role)
{
    const bool needsFonts = role == RecognizerRole::pages;
#ifdef ORLEN_SANITIZED
    // A sanitizer inspects its own process and reports with calls no decoder needs.
    return FileRights::giveUp({.processTable = true, .fonts = needsFonts});
#else
    ProcessLimits::hideMemory();
    const int landlock = FileRights::giveUp({.fonts = needsFonts});
    const bool mayOpen = needsFonts && landlock > 0;
    (void)SystemCallFilter::apply(mayOpen); // Without it, the rest still holds.
    return landlock;
#endif
}

} // namespace orlen::Cage

#include "scan/OtherDisk.h"

#include "platform/files/MountTable.h"
#include "platform/files/Places.h"
#include "scan/ScanTexts.h"
#include "scan/tree/CurrentMounts.h"

namespace orlen {

void noteOtherDisks(std::vector<Finding>& findings)
{
    const std::string& home = Places::current().home;
    const auto mounts = CurrentMounts::table();
    if (mounts->below(home).empty())
        return;
    for (Finding& finding : findings) {
        for (FileEntry& entry : finding.items) {
            const Mount* mount = mounts->holding(entry.path);
            if (mount != nullptr && !mounts->isSameFileSystem(entry.path, home))
                addNote(entry, Message{ScanTexts::kOnOtherDisk, {{"folder", mount->point}}});
        }
    }
}

} // namespace orlen

#include "platform/files/FolderLock.h"

#include "platform/files/Folder.h"
#include "platform/files/Retrying.h"
#include "platform/text/PathText.h"

#include <sys/file.h>

namespace orlen {

Result<FolderLock> FolderLock::take(const std::string& folder)
{
    // The user may have moved the folder and left a link: "." opens its target.
    auto opened = openFolder(PathText::join(folder, "."));
    if (!opened.ok())
        return Errno{opened.error()};
    if (retried([&] { return ::flock(opened.value().get(), LOCK_EX | LOCK_NB); }) != 0)
        return Errno{errno};
    return FolderLock(std::move(opened).value());
}

} // namespace orlen

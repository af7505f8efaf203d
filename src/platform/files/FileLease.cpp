#include "platform/files/FileLease.h"

#include "platform/files/FileContent.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>

namespace orlen {

Result<FileLease> FileLease::take(int folder, const char* name)
{
    FileLease lease;
    auto file = openFileAt(folder, name);
    if (!file.ok())
        return lease;
    lease.m_file = std::move(file).value();
    // When somebody else opens the file the kernel sends a signal; choose one that is ignored by default.
    (void)::fcntl(lease.m_file.get(), F_SETSIG, SIGURG);
    if (::fcntl(lease.m_file.get(), F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN)
        return Errno{EBUSY};
    return lease;
}

} // namespace orlen

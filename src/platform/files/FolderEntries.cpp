#include "platform/files/FolderEntries.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/text/PathText.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen {

namespace {

constexpr int kPlaceFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// The result of a call that returns 0 or -1.
Result<void> outcome(int answer)
{
    if (answer != 0)
        return Errno{errno};
    return {};
}

} // namespace

Result<UniqueFd> openUnlinkedFolder(const std::string& path)
{
    if (!path.starts_with('/'))
        return Errno{EINVAL};
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    // O_NOFOLLOW only covers the last component, so open each component in turn.
    auto folder = openUnlinkedFolderAt(AT_FDCWD, "/");
    for (const std::string_view part : PathText::components(path)) {
        if (!folder.ok())
            break;
        folder = openUnlinkedFolderAt(folder.value().get(), std::string(part).c_str());
    }
    return folder;
}

Result<UniqueFd> openUnlinkedFolderAt(int parent, const char* name)
{
    return retriedFd([&] { return ::openat(parent, name, kPlaceFlags); });
}

Result<UniqueFd> openOrMakeFolderAt(int parent, const char* name, unsigned mode)
{
    if (::mkdirat(parent, name, mode) != 0 && errno != EEXIST) {
        const int error = errno;
        // The name may exist even in a folder nobody may write to.
        auto existing = openUnlinkedFolderAt(parent, name);
        return existing.ok() ? std::move(existing) : Result<UniqueFd>(Errno{error});
    }
    return openUnlinkedFolderAt(parent, name);
}

Result<UniqueFd> createFileAt(int folder, const char* name)
{
    return retriedFd(
        [&] { return ::openat(folder, name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600); });
}

Result<void> writeAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto written = retried([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (written < 0)
            return Errno{errno};
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

Result<void> syncFile(int file)
{
    return outcome(retried([&] { return ::fsync(file); }));
}

Result<void> renameNoReplaceAt(int folder, const char* name, int newFolder, const char* newName)
{
    const auto renamed = outcome(::renameat2(folder, name, newFolder, newName, RENAME_NOREPLACE));
    const bool isUnsupported = renamed.error() == EINVAL || renamed.error() == ENOSYS;
    if (!isUnsupported)
        return renamed;
    if (const auto taken = statusAt(newFolder, newName); taken.error() != ENOENT)
        return Errno{taken.ok() ? EEXIST : taken.error()};
    return outcome(::renameat(folder, name, newFolder, newName));
}

Result<void> renameReplacingAt(int folder, const char* name, const char* newName)
{
    return outcome(::renameat(folder, name, folder, newName));
}

Result<void> removeFileAt(int folder, const char* name)
{
    return outcome(::unlinkat(folder, name, 0));
}

} // namespace orlen

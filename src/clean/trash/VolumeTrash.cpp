#include "clean/trash/VolumeTrash.h"

#include "clean/Safety.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <cerrno>

namespace orlen::VolumeTrash {

namespace {

/// The sticky bit keeps users of a shared folder from touching each other's entries.
constexpr std::uint32_t kSticky = 01000;
constexpr unsigned kPrivate = 0700;

/// By device and mount: an unmounted btrfs subvolume has its own device, a bind mount does not, and a rename
/// crosses neither.
bool isSameVolume(const FileStatus& a, const FileStatus& b)
{
    return a.identity.device == b.identity.device && a.mount == b.mount;
}

/// The topmost ancestor on the same volume.
std::string topFolder(std::string path, const FileStatus& entryFolder)
{
    while (path != "/") {
        const std::string above(PathText::parent(path));
        const auto status = statusOf(above);
        if (!status.ok() || !isSameVolume(status.value(), entryFolder))
            break;
        path = above;
    }
    return path;
}

/// The folder "<name>" in `parent` as a Trash of this volume.
Result<TrashFolder> adopt(int parent, const std::string& name, const std::string& path,
                          const FileStatus& volume, TrashFolder::Missing missing)
{
    // Items must end up where the program is allowed to find them and put them back from.
    if (Safety::isProtected(PathText::join(path, "files/item")))
        return Errno{EXDEV};
    auto trash = missing == TrashFolder::Missing::make ? openOrMakeFolderAt(parent, name.c_str(), kPrivate)
                                                       : openUnlinkedFolderAt(parent, name.c_str());
    if (!trash.ok())
        return Errno{trash.error()};
    if (const auto status = statusOfOpen(trash.value().get());
        !status.ok() || !isSameVolume(status.value(), volume))
        return Errno{EXDEV};
    auto opened = TrashFolder::open(std::move(trash).value(), path, missing);
    if (opened.ok() && opened.value().device() != volume.identity.device)
        return Errno{EXDEV};
    return opened;
}

Result<TrashFolder> openShared(int top, const std::string& topPath, const FileStatus& volume,
                               TrashFolder::Missing missing)
{
    const auto shared = openUnlinkedFolderAt(top, ".Trash");
    if (!shared.ok())
        return Errno{shared.error()};
    const auto status = statusOfOpen(shared.value().get());
    if (!status.ok() || (status.value().mode & kSticky) == 0)
        return Errno{EXDEV};
    const std::string name = std::to_string(Places::current().user);
    return adopt(shared.value().get(), name, PathText::join(PathText::join(topPath, ".Trash"), name), volume,
                 missing);
}

} // namespace

Result<TrashFolder> open(int folder, const std::string& path, TrashFolder::Missing missing)
{
    const auto volume = statusOfOpen(folder);
    if (!volume.ok())
        return Errno{volume.error()};
    const std::string topPath = topFolder(path, volume.value());
    const auto top = openUnlinkedFolder(topPath);
    if (!top.ok())
        return Errno{EXDEV};
    if (const auto status = statusOfOpen(top.value().get());
        !status.ok() || !isSameVolume(status.value(), volume.value()))
        return Errno{EXDEV};
    if (auto shared = openShared(top.value().get(), topPath, volume.value(), missing); shared.ok())
        return shared;
    const std::string name = ".Trash-" + std::to_string(Places::current().user);
    auto own = adopt(top.value().get(), name, PathText::join(topPath, name), volume.value(), missing);
    return own.ok() ? std::move(own) : Result<TrashFolder>(Errno{EXDEV});
}

} // namespace orlen::VolumeTrash

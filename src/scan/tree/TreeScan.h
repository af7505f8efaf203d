#pragma once

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/MountTable.h"
#include "scan/tree/DiskWorkers.h"
#include "scan/tree/PathMarks.h"
#include "scan/tree/TreeFolder.h"

#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

class UnreadableFolders;

/// What is asked of a file, no more.
struct TreeFile {
    const char* name; ///< ends in a zero byte; not necessarily UTF-8; lives during the call
    FileStatus status;
};

/// A folder's names, for deciding about it before it is entered.
class TreeListing {
public:
    TreeListing(int folder, std::span<const FolderChunk> chunks) : m_folder(folder), m_chunks(chunks) {}

    /// The open folder itself, for looking at a file by name.
    [[nodiscard]] int descriptor() const { return m_folder; }
    /// Calls `visit(FolderEntry)` for each entry.
    template <typename Visit>
    void forEach(Visit&& visit) const
    {
        for (const FolderChunk& chunk : m_chunks)
            chunk.forEach(visit);
    }

private:
    int m_folder;
    std::span<const FolderChunk> m_chunks;
};

/// What to do on the way. All calls come from several threads at once; calls about one folder come in the
/// order below.
class TreeVisitor {
public:
    virtual ~TreeVisitor() = default;

    /// Whether to enter the child folder `name`, and with which tag. Asked before it is touched.
    virtual std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                               std::uint32_t marks) = 0;
    /// Whether most folders will be asked for their path: it is then kept instead of put together each time,
    /// unless it is longer than the kernel takes.
    [[nodiscard]] virtual bool asksForPaths() const { return false; }
    /// Whether `accept` wants to see every folder's names.
    [[nodiscard]] virtual bool looksAtListings() const { return false; }
    /// Whether to go on with a folder after a look at its names; false leaves out all of it.
    virtual bool accept(const TreeFolder& folder, const TreeListing& listing);
    /// The regular files of one bufferful of the folder's listing.
    virtual void files(const TreeFolder& folder, std::span<const TreeFile> files) = 0;
    /// Told once for each bufferful: its entries of any type.
    virtual void listed(const TreeFolder& folder, const FolderChunk& entries);
};

struct TreeRoot {
    std::string path;
    std::uint32_t tag = 0;
};

/// What may lie behind a mount point.
enum class Crossing {
    anyDisk,        ///< local and removable disks, no network or pseudo file system
    localDisks,     ///< disks of this machine only
    sameFileSystem, ///< only another mount or subvolume of the root's own file system
};

struct TreeScanOptions {
    Crossing crossing = Crossing::anyDisk;
    DiskWorkers::Priority priority = DiskWorkers::Priority::user;
    /// Folders to leave out or to know by name; null for none. Mounted network and pseudo file systems below
    /// a root are always left out, before they are touched: a dead server would block.
    const PathMarks* marks = nullptr;
    /// Told of each folder that could not be opened or listed; null when nobody asks.
    UnreadableFolders* unreadable = nullptr;
};

/// Goes through folder trees: relative to open folders, never following a link, one metadata call per regular
/// file and none for folders and links, folders and large listings shared out to the pool of disk workers, a
/// bounded number of open descriptors however wide or deep the tree. A folder that cannot be read is passed
/// over, one that lies deeper than a path may be long is not. Roots that are no folders are passed over too.
/// Returns when all is visited, or soon after a stop request. A folder that is reached twice through mounts
/// is visited once.
void scanTrees(std::span<const TreeRoot> roots, TreeVisitor& visitor, const MountTable& mounts,
               const TreeScanOptions& options, const std::stop_token& stop);

} // namespace orlen

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

/// One regular file of a folder.
struct TreeFile {
    const char* name; ///< zero-terminated, not necessarily UTF-8; valid during the call
    FileStatus status;
};

/// A folder's listing, for deciding about it before it is entered.
class TreeListing {
public:
    TreeListing(int folder, std::span<const FolderChunk> chunks) : m_folder(folder), m_chunks(chunks) {}

    /// The open folder, for looking at a file by name.
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

/// What to do during a scan. Called from several threads at once; for any one folder, in the order below.
class TreeVisitor {
public:
    virtual ~TreeVisitor() = default;

    /// Whether to enter the child folder `name`, and with which tag. Asked before it is touched.
    virtual std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                               std::uint32_t marks) = 0;
    /// Whether the paths of most folders will be needed: then they are stored instead of built on request,
    /// unless too long for the kernel.
    [[nodiscard]] virtual bool asksForPaths() const { return false; }
    /// Whether `accept` needs every folder's listing.
    [[nodiscard]] virtual bool looksAtListings() const { return false; }
    /// Whether to continue with a folder, given its listing; false skips all of it.
    virtual bool accept(const TreeFolder& folder, const TreeListing& listing);
    /// The regular files in one buffer of the folder's listing.
    virtual void files(const TreeFolder& folder, std::span<const TreeFile> files) = 0;
    /// Called once per buffer with its entries of all types.
    virtual void listed(const TreeFolder& folder, const FolderChunk& entries);
};

struct TreeRoot {
    std::string path;
    std::uint32_t tag = 0;
};

/// Which mount points may be crossed.
enum class Crossing {
    anyDisk,        ///< local and removable disks, but no network or pseudo file system
    localDisks,     ///< disks of this machine only
    sameFileSystem, ///< only mounts or subvolumes of the root's own file system
};

struct TreeScanOptions {
    Crossing crossing = Crossing::anyDisk;
    DiskWorkers::Priority priority = DiskWorkers::Priority::user;
    /// Folders to skip or recognise; may be null. Mounted network and pseudo file systems below a root are
    /// always skipped untouched, since a dead server would block.
    const PathMarks* marks = nullptr;
    /// Collects folders that could not be opened or listed; may be null.
    UnreadableFolders* unreadable = nullptr;
};

/// Scans folder trees: relative to open folders, never following a link, with one metadata call per regular
/// file and none for folders and links. Folders and large listings are shared among the disk workers, and the
/// number of open descriptors is bounded however wide or deep the tree. Unreadable folders, and roots that
/// are not folders, are skipped; folders deeper than a path may be long are not. A folder reachable twice
/// through mounts is visited once. Returns when everything is visited, or soon after a stop request.
void scanTrees(std::span<const TreeRoot> roots, TreeVisitor& visitor, const MountTable& mounts,
               const TreeScanOptions& options, const std::stop_token& stop);

} // namespace orlen

#pragma once

#include "platform/files/UniqueFd.h"
#include "scan/tree/TreeScan.h"

#include <memory>
#include <mutex>
#include <unordered_set>

namespace orlen {

/// The work of one `scanTrees`.
///
/// A piece is one folder to open and list, or one buffer of a large folder's listing to process. Folders wait
/// as packed names behind their open parent, and the newest is taken first: going deep before wide keeps few
/// folders open and the queue short. If too many are open nevertheless, a folder's descriptor is closed after
/// listing, and its children are reopened from the root.
class TreeScanJob : public DiskWorkers::Job {
public:
    TreeScanJob(std::span<const TreeRoot> roots, TreeVisitor& visitor, const MountTable& mounts,
                const TreeScanOptions& options, std::stop_token stop);

protected:
    void doPiece() override;

private:
    /// A folder with its descriptor, shared by everything waiting inside it.
    class OpenFolder;
    struct WaitingFolders {
        std::shared_ptr<OpenFolder> parent;
        std::string names; ///< zero-terminated, one after another
        std::size_t next = 0;
    };
    struct WaitingChunk {
        std::shared_ptr<OpenFolder> folder;
        FolderChunk chunk;
    };
    struct Listing {
        std::vector<FolderChunk> chunks;
        std::string folders; ///< names, zero-terminated, one after another
        int folderCount = 0;
    };

    void enterRoot(const TreeRoot& root);
    void enterChild(const std::shared_ptr<OpenFolder>& parent, const std::string& name);
    void visit(const std::shared_ptr<TreeFolder>& folder, UniqueFd fd);
    [[nodiscard]] bool admit(TreeFolder& folder, int fd);
    [[nodiscard]] bool mayCross(const TreeFolder& from, std::uint64_t mount) const;
    [[nodiscard]] bool isFirstVisit(const FileIdentity& identity);
    void list(const std::shared_ptr<OpenFolder>& folder, Listing& listing);
    void noteFolders(const OpenFolder& folder, const FolderChunk& chunk, Listing& listing) const;
    [[nodiscard]] bool shareOut(const std::shared_ptr<OpenFolder>& folder, FolderChunk& chunk);
    void askAbout(OpenFolder& folder, const FolderChunk& chunk);
    void waitWith(const std::shared_ptr<OpenFolder>& folder, Listing& listing);
    void noteUnreadable(const TreeFolder* parent, const std::string& name, int error) const;
    [[nodiscard]] static Result<UniqueFd> reopen(const TreeFolder& folder);

    TreeVisitor& m_visitor;
    const MountTable& m_mounts;
    const TreeScanOptions m_options;
    const std::stop_token m_stop;
    PathMarks m_foreignMounts; ///< below the roots, spelled as those are
    bool m_remembersFolders = false;

    std::mutex m_lock; ///< guards the queues
    std::vector<WaitingChunk> m_chunks;
    std::vector<WaitingFolders> m_folders;
    std::span<const TreeRoot> m_roots;

    std::mutex m_visitedLock;
    std::unordered_set<FileIdentity, FileIdentityHash> m_visited;
};

} // namespace orlen

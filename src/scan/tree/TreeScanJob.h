#pragma once

#include "platform/files/UniqueFd.h"
#include "scan/tree/TreeScan.h"

#include <memory>
#include <mutex>
#include <unordered_set>

namespace orlen {

/// The work of one `scanTrees`.
///
/// A piece is one folder to open and list, or one bufferful of a large folder's listing to ask about. Folders
/// wait as names packed behind the open folder that they lie in, the newest taken first: that goes down
/// before it goes wide, so few folders are open at a time and what waits stays small. Should too many be open
/// all the same, a folder's descriptor is given up after listing, and each of its children finds the way
/// again from the root.
class TreeScanJob : public DiskWorkers::Job {
public:
    TreeScanJob(std::span<const TreeRoot> roots, TreeVisitor& visitor, const MountTable& mounts,
                const TreeScanOptions& options, std::stop_token stop);

protected:
    void doPiece() override;

private:
    /// A folder with its descriptor, shared by what still waits inside it.
    class OpenFolder;
    struct WaitingFolders {
        std::shared_ptr<OpenFolder> parent;
        std::string names; ///< each ended by a zero byte
        std::size_t next = 0;
    };
    struct WaitingChunk {
        std::shared_ptr<OpenFolder> folder;
        FolderChunk chunk;
    };
    struct Listing {
        std::vector<FolderChunk> chunks;
        std::string folders; ///< names, each ended by a zero byte
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

    std::mutex m_lock; ///< guards what waits
    std::vector<WaitingChunk> m_chunks;
    std::vector<WaitingFolders> m_folders;
    std::span<const TreeRoot> m_roots;

    std::mutex m_visitedLock;
    std::unordered_set<FileIdentity, FileIdentityHash> m_visited;
};

} // namespace orlen

#include "scan/tree/TreeScanJob.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/UnreadableFolders.h"

#include <atomic>
#include <cerrno>
#include <cstring>

namespace orlen {

namespace {

// Most descriptors held by waiting folders over all jobs; the usual limit of a process is 1,024.
constexpr int kMostHeldFolders = 256;
// Most buffers of large listings waiting in one job before the lister processes them itself: 4 MB.
constexpr std::size_t kMostWaitingChunks = 128;

std::atomic<int> heldFolders{0};

const PathMarks::Node* childOf(const PathMarks::Node* node, std::string_view name)
{
    return node == nullptr ? nullptr : node->child(name);
}

std::uint32_t marksOf(const PathMarks::Node* node)
{
    return node == nullptr ? 0 : node->marks();
}

/// The path as spelled in the kernel's mount table. No link is followed below a root, so only the home
/// folder's own links matter.
std::string inKernelsForm(const std::string& path)
{
    const Places& places = Places::current();
    if (places.resolvedHome.empty() || !PathText::isAtOrBelow(path, places.home))
        return path;
    return places.resolvedHome + path.substr(places.home.size());
}

} // namespace

class TreeScanJob::OpenFolder {
public:
    OpenFolder(std::shared_ptr<const TreeFolder> folder, UniqueFd fd)
        : m_folder(std::move(folder)), m_fd(std::move(fd))
    {
        heldFolders.fetch_add(1);
    }
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;
    ~OpenFolder() { heldFolders.fetch_sub(m_isHeld ? 1 : 0); }

    [[nodiscard]] const std::shared_ptr<const TreeFolder>& folder() const { return m_folder; }
    [[nodiscard]] const UniqueFd& fd() const { return m_fd; }
    /// Only before the folder is shared with other threads.
    void giveUpDescriptor()
    {
        m_fd.reset();
        m_isHeld = false;
        heldFolders.fetch_sub(1);
    }

private:
    std::shared_ptr<const TreeFolder> m_folder;
    UniqueFd m_fd;
    bool m_isHeld = true;
};

TreeScanJob::TreeScanJob(std::span<const TreeRoot> roots, TreeVisitor& visitor, const MountTable& mounts,
                         const TreeScanOptions& options, std::stop_token stop)
    : Job(options.priority), m_visitor(visitor), m_mounts(mounts), m_options(options),
      m_stop(std::move(stop)), m_roots(roots)
{
    for (const TreeRoot& root : roots) {
        const std::string folder = inKernelsForm(root.path);
        for (const Mount* mount : mounts.below(folder)) {
            if (mount->kind == MountClass::foreign)
                m_foreignMounts.mark(root.path + mount->point.substr(folder.size()), PathMarks::kSkip);
            else
                m_remembersFolders = true;
        }
    }
    announce(static_cast<int>(roots.size()));
}

void TreeScanJob::doPiece()
{
    std::unique_lock lock(m_lock);
    if (!m_chunks.empty()) {
        const WaitingChunk waiting = std::move(m_chunks.back());
        m_chunks.pop_back();
        lock.unlock();
        askAbout(*waiting.folder, waiting.chunk);
        return;
    }
    if (m_folders.empty()) {
        const TreeRoot& root = m_roots.front();
        m_roots = m_roots.subspan(1);
        lock.unlock();
        enterRoot(root);
        return;
    }
    WaitingFolders& waiting = m_folders.back();
    const std::string name(waiting.names.c_str() + waiting.next);
    waiting.next += name.size() + 1;
    std::shared_ptr<OpenFolder> parent = waiting.parent;
    if (waiting.next == waiting.names.size())
        m_folders.pop_back();
    lock.unlock();
    enterChild(parent, name);
}

void TreeScanJob::enterRoot(const TreeRoot& root)
{
    if (m_stop.stop_requested())
        return;
    auto fd = openFolder(root.path);
    if (!fd.ok())
        return noteUnreadable(nullptr, root.path, fd.error());
    auto folder = std::make_shared<TreeFolder>(nullptr, root.path, root.tag);
    folder->m_path = root.path;
    folder->m_marks = m_options.marks == nullptr ? nullptr : m_options.marks->at(root.path);
    folder->m_mountMarks = m_foreignMounts.at(root.path);
    visit(folder, std::move(fd).value());
}

void TreeScanJob::enterChild(const std::shared_ptr<OpenFolder>& parent, const std::string& name)
{
    if (m_stop.stop_requested())
        return;
    const PathMarks::Node* mountMarks = childOf(parent->folder()->m_mountMarks, name);
    if (marksOf(mountMarks) != 0)
        return;
    const PathMarks::Node* marks = childOf(parent->folder()->m_marks, name);
    if ((marksOf(marks) & PathMarks::kSkip) != 0)
        return;
    const auto tag = m_visitor.enter(*parent->folder(), name, marksOf(marks));
    if (!tag)
        return;
    UniqueFd again;
    if (!parent->fd().isOpen()) {
        auto reopened = reopen(*parent->folder());
        if (!reopened.ok())
            return noteUnreadable(parent->folder().get(), name, reopened.error());
        again = std::move(reopened).value();
    }
    auto fd = openFolderAt(again.isOpen() ? again.get() : parent->fd().get(), name.c_str());
    if (!fd.ok())
        return noteUnreadable(parent->folder().get(), name, fd.error());
    auto folder = std::make_shared<TreeFolder>(parent->folder(), name, *tag);
    if (m_visitor.asksForPaths() && parent->folder()->canName(name))
        folder->m_path = parent->folder()->pathOf(name);
    folder->m_marks = marks;
    folder->m_mountMarks = mountMarks;
    visit(folder, std::move(fd).value());
}

void TreeScanJob::visit(const std::shared_ptr<TreeFolder>& folder, UniqueFd fd)
{
    if (!admit(*folder, fd.get()))
        return;
    const auto open = std::make_shared<OpenFolder>(folder, std::move(fd));
    Listing listing;
    list(open, listing);
    if (m_visitor.looksAtListings()) {
        if (!m_visitor.accept(*folder, TreeListing(open->fd().get(), listing.chunks)))
            return;
        for (std::size_t i = 0; i + 1 < listing.chunks.size(); ++i) {
            if (shareOut(open, listing.chunks[i]))
                continue;
            askAbout(*open, listing.chunks[i]);
        }
    }
    if (!listing.chunks.empty())
        askAbout(*open, listing.chunks.back());
    if (listing.folderCount > 0)
        waitWith(open, listing);
}

bool TreeScanJob::admit(TreeFolder& folder, int fd)
{
    const auto status = statusOfOpen(fd);
    if (!status.ok())
        return false;
    folder.m_identity = status.value().identity;
    folder.m_mount = status.value().mount;
    if (folder.parent() != nullptr && !mayCross(*folder.parent(), folder.m_mount))
        return false;
    return !m_remembersFolders || isFirstVisit(folder.m_identity);
}

bool TreeScanJob::mayCross(const TreeFolder& from, std::uint64_t mount) const
{
    if (mount == from.mount())
        return true;
    const Mount* behind = m_mounts.byId(mount);
    const Mount* before = m_mounts.byId(from.mount());
    // Mounted since the table was read: unknown.
    if (behind == nullptr || behind->kind == MountClass::foreign)
        return false;
    switch (m_options.crossing) {
    case Crossing::anyDisk:
        return true;
    case Crossing::localDisks:
        return behind->kind == MountClass::local;
    case Crossing::sameFileSystem:
        return before != nullptr && behind->type == before->type && behind->source == before->source;
    }
    return false;
}

bool TreeScanJob::isFirstVisit(const FileIdentity& identity)
{
    const std::lock_guard lock(m_visitedLock);
    return m_visited.insert(identity).second;
}

/// Reads the folder's names. If nobody needs them all at once, every buffer but the last is shared out or
/// processed right away; otherwise all are kept.
void TreeScanJob::list(const std::shared_ptr<OpenFolder>& folder, Listing& listing)
{
    FolderReader reader(folder->fd().get());
    while (!m_stop.stop_requested()) {
        auto chunk = reader.next();
        if (!chunk)
            break;
        noteFolders(*folder, *chunk, listing);
        if (!listing.chunks.empty() && !m_visitor.looksAtListings()) {
            if (!shareOut(folder, listing.chunks.back()))
                askAbout(*folder, listing.chunks.back());
            listing.chunks.clear();
        }
        listing.chunks.push_back(std::move(*chunk));
    }
    noteUnreadable(folder->folder()->parent(), folder->folder()->name(), reader.error());
}

/// Only folders with a usable path can be reported.
void TreeScanJob::noteUnreadable(const TreeFolder* parent, const std::string& name, int error) const
{
    if (m_options.unreadable == nullptr || !UnreadableFolders::isUnreadable(error))
        return;
    if (parent == nullptr)
        m_options.unreadable->add(name);
    else if (parent->canName(name))
        m_options.unreadable->add(parent->pathOf(name));
}

void TreeScanJob::noteFolders(const OpenFolder& folder, const FolderChunk& chunk, Listing& listing) const
{
    const PathMarks::Node* mountMarks = folder.folder()->m_mountMarks;
    chunk.forEach([&](const FolderEntry& entry) {
        // Do not even look at what may never answer.
        if (marksOf(childOf(mountMarks, entry.name)) != 0)
            return;
        if (entry.type == EntryType::unknown) {
            const auto status = statusAt(folder.fd().get(), entry.name);
            if (!status.ok() || status.value().type != FileType::folder)
                return;
        } else if (entry.type != EntryType::folder) {
            return;
        }
        listing.folders.append(entry.name, std::strlen(entry.name) + 1);
        ++listing.folderCount;
    });
}

/// Leaves a buffer to whoever is free. False if enough are waiting already.
bool TreeScanJob::shareOut(const std::shared_ptr<OpenFolder>& folder, FolderChunk& chunk)
{
    {
        const std::lock_guard lock(m_lock);
        if (m_chunks.size() >= kMostWaitingChunks)
            return false;
        m_chunks.push_back({folder, std::move(chunk)});
    }
    announce(1);
    return true;
}

void TreeScanJob::askAbout(OpenFolder& folder, const FolderChunk& chunk)
{
    std::vector<TreeFile> files;
    const int fd = folder.fd().get();
    const PathMarks::Node* mountMarks = folder.folder()->m_mountMarks;
    chunk.forEach([&](const FolderEntry& entry) {
        if ((entry.type != EntryType::regular && entry.type != EntryType::unknown) || m_stop.stop_requested())
            return;
        if (marksOf(childOf(mountMarks, entry.name)) != 0)
            return;
        const auto status = statusAt(fd, entry.name);
        if (status.ok() && status.value().type == FileType::regular)
            files.push_back({entry.name, status.value()});
    });
    m_visitor.listed(*folder.folder(), chunk);
    if (!files.empty())
        m_visitor.files(*folder.folder(), files);
}

void TreeScanJob::waitWith(const std::shared_ptr<OpenFolder>& folder, Listing& listing)
{
    // Waiting buffers use the descriptor, so it stays open regardless of the number.
    if (heldFolders.load() > kMostHeldFolders && folder.use_count() == 1)
        folder->giveUpDescriptor();
    listing.folders.shrink_to_fit();
    {
        const std::lock_guard lock(m_lock);
        m_folders.push_back({folder, std::move(listing.folders), 0});
    }
    announce(listing.folderCount);
}

/// Reopens a folder from its root, component by component, and verifies that it is the same one.
Result<UniqueFd> TreeScanJob::reopen(const TreeFolder& folder)
{
    std::vector<const TreeFolder*> chain;
    for (const TreeFolder* at = &folder; at != nullptr; at = at->parent())
        chain.push_back(at);
    auto fd = openFolder(chain.back()->name());
    for (auto at = chain.rbegin() + 1; fd.ok() && at != chain.rend(); ++at)
        fd = openFolderAt(fd.value().get(), (*at)->name().c_str());
    if (!fd.ok())
        return fd;
    const auto status = statusOfOpen(fd.value().get());
    if (!status.ok() || status.value().identity != folder.identity())
        return Errno{ENOENT}; // gone, and another one took its place
    return fd;
}

} // namespace orlen

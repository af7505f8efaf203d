#include "scan/walk/WalkedCaches.h"

#include "clean/Safety.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeScan.h"
#include "scan/tree/TreeSum.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <functional>
#include <mutex>
#include <unordered_map>
#include <unordered_set>

namespace orlen::WalkedCaches {

namespace {

constexpr std::int64_t kSmallest = 1'000'000;
constexpr std::size_t kLimit = 600;

/// Adds up all files and collects the large ones, except where a walk would skip by name.
class Visitor : public TreeVisitor {
public:
    struct Large {
        Cand cand;
        FileIdentity identity;
        std::string folder; ///< the cache
    };

    Visitor(const std::vector<Folder>& folders, std::int64_t largeBytes)
        : m_folders(folders), m_largeBytes(largeBytes), m_sums(folders.size())
    {
    }

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t /*marks*/) override
    {
        return parent.tag() | (WalkRules::isLeftOut(name) ? kLeftOut : 0);
    }

    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        const std::size_t root = folder.tag() & ~kLeftOut;
        m_sums[root].add(files);
        for (const TreeFile& file : files) {
            if (file.status.allocatedBytes < m_largeBytes || (folder.tag() & kLeftOut) != 0 ||
                file.name[0] == '.' || !folder.canName(file.name))
                continue;
            Cand cand{folder.pathOf(file.name), file.status.allocatedBytes, file.status.modified,
                      FileStamp::of(file.status), file.status.links > 1};
            if (!PathText::isValidUtf8(cand.path) || Safety::isProtected(cand.path))
                continue;
            const std::lock_guard lock(m_lock);
            m_large.push_back({std::move(cand), file.status.identity, m_folders[root].path});
        }
    }

    [[nodiscard]] TreeSize size(std::size_t root) const { return m_sums[root].size(); }
    [[nodiscard]] std::vector<Large> takeLarge() { return std::move(m_large); }

private:
    static constexpr std::uint32_t kLeftOut = 1U << 31U;

    const std::vector<Folder>& m_folders;
    const std::int64_t m_largeBytes;
    std::vector<TreeSum> m_sums;
    std::mutex m_lock;
    std::vector<Large> m_large;
};

/// Knows which folders a walk would have skipped for their contents. Few large files lie in few folders.
class Natures {
public:
    /// Whether any folder from the file's own up to the cache is a single unit to its user.
    bool areLeftOutBetween(std::string_view folder, std::string_view file)
    {
        for (std::string_view at = PathText::parent(file); at.size() > folder.size();
             at = PathText::parent(at)) {
            if (isLeftOut(std::string(at)))
                return true;
        }
        return false;
    }

private:
    bool isLeftOut(const std::string& folder)
    {
        const auto [known, isNew] = m_known.try_emplace(folder, false);
        if (isNew) {
            const WalkRules::FolderNature nature = WalkRules::natureOf(folder);
            known->second = nature == WalkRules::FolderNature::package ||
                            nature == WalkRules::FolderNature::mirrored || Safety::protectsContents(folder);
        }
        return known->second;
    }

    std::unordered_map<std::string, bool> m_known;
};

std::vector<Cand> walkable(std::vector<Visitor::Large> large)
{
    std::ranges::sort(large, {},
                      [](const Visitor::Large& file) -> const std::string& { return file.cand.path; });
    Natures natures;
    std::unordered_set<FileIdentity, FileIdentityHash> seen;
    std::vector<Cand> cands;
    for (Visitor::Large& file : large) {
        if (!natures.areLeftOutBetween(file.folder, file.cand.path) && seen.insert(file.identity).second)
            cands.push_back(std::move(file.cand));
    }
    return cands;
}

bool mayBeOffered(const std::string& folder)
{
    return PathText::isValidUtf8(folder) && !Safety::isProtected(folder) && isDeletable(folder);
}

std::vector<FileEntry> entriesOf(const std::vector<Folder>& folders, const Visitor& visitor)
{
    std::vector<FileEntry> entries;
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const auto& [path, note, counter] = folders[i];
        const TreeSize size = visitor.size(i);
        const auto status = statusOf(path);
        if (size.freed < kSmallest || !status.ok() || !mayBeOffered(path))
            continue;
        FileEntry& entry = entries.emplace_back();
        entry.path = path;
        entry.modified = status.value().modified;
        entry.stamp = FileStamp::of(status.value());
        entry.rating = Rating::review;
        addNote(entry, note);
        FS::setSize(entry, size);
    }
    std::ranges::stable_sort(entries, std::ranges::greater(), &FileEntry::size);
    if (entries.size() > kLimit)
        entries.resize(kLimit);
    return entries;
}

} // namespace

Found measure(const std::vector<Folder>& folders, std::int64_t largeBytes, UnreadableFolders* unreadable,
              FolderTotals* totals, const std::stop_token& stop)
{
    Visitor visitor(folders, largeBytes);
    std::vector<TreeRoot> roots;
    for (std::size_t i = 0; i < folders.size(); ++i)
        roots.push_back({folders[i].path, static_cast<std::uint32_t>(i)});
    TreeScanOptions options;
    options.crossing = Crossing::localDisks;
    options.unreadable = unreadable;
    scanTrees(roots, visitor, *CurrentMounts::table(), options, stop);
    for (std::size_t i = 0; i < folders.size() && totals != nullptr; ++i)
        totals->add(folders[i].counter, visitor.size(i).held);
    return {entriesOf(folders, visitor), walkable(visitor.takeLarge())};
}

} // namespace orlen::WalkedCaches

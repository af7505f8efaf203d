#include "scan/walk/WalkVisitor.h"

#include "clean/Safety.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanProgress.h"
#include "scan/ScanTexts.h"
#include "scan/walk/ProjectCaches.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <unordered_set>

namespace orlen {

namespace {

constexpr std::int64_t kImageBytes = 20'000;

bool comesBefore(const Cand& a, const Cand& b)
{
    return a.path < b.path;
}

} // namespace

std::optional<std::uint32_t> WalkVisitor::enter(const TreeFolder& parent, std::string_view name,
                                                std::uint32_t marks)
{
    const bool isTop = m_scope == Scope::homeFolder && parent.parent() == nullptr;
    if (WalkRules::isLeftOut(name) || (isTop && WalkRules::isLeftOutAtTop(name)))
        return std::nullopt;
    if (!parent.canName(name) || Safety::protectsContents(parent.pathOf(name)) || isCollected(parent, name))
        return std::nullopt;
    std::uint32_t tag = parent.tag() & kImages;
    if ((marks & WalkRules::kImageFolder) != 0)
        tag |= kImages;
    if ((marks & WalkRules::kFilmFolder) != 0)
        tag |= kFilms;
    else if ((parent.tag() & kFilms) != 0)
        tag |= kInFilms;
    return tag | tagOf(counterIn(parent, name, marks));
}

FolderTotals::Counter WalkVisitor::counterIn(const TreeFolder& parent, std::string_view name,
                                             std::uint32_t marks) const
{
    if (m_totals == nullptr || (marks & WalkRules::kCountedElsewhere) != 0)
        return FolderTotals::kNone;
    return m_totals->child(counterOf(parent), name);
}

/// Whether its parent's listing showed that it is a cache.
bool WalkVisitor::isCollected(const TreeFolder& parent, std::string_view name)
{
    if (!ProjectCaches::isKnownName(name))
        return false;
    const std::lock_guard lock(m_lock);
    return m_projectCaches.contains(parent.pathOf(name));
}

bool WalkVisitor::accept(const TreeFolder& folder, const TreeListing& listing)
{
    // The given folders themselves are always walked, whatever they contain.
    const auto nature =
        folder.parent() == nullptr ? WalkRules::FolderNature::plain : WalkRules::natureOf(listing);
    switch (nature) {
    case WalkRules::FolderNature::plain:
    case WalkRules::FolderNature::workTree:
        break;
    case WalkRules::FolderNature::package:
    case WalkRules::FolderNature::mirrored:
        return false;
    case WalkRules::FolderNature::taggedCache: {
        const std::lock_guard lock(m_lock);
        m_caches.push_back({folder.path(), ScanTexts::kMarkedAsCache, counterOf(folder)});
        return false;
    }
    }
    if (nature == WalkRules::FolderNature::workTree) {
        const std::lock_guard lock(m_lock);
        m_workTrees.insert(folder.path());
    }
    collectCachesIn(folder, listing);
    return true;
}

void WalkVisitor::collectCachesIn(const TreeFolder& folder, const TreeListing& listing)
{
    const auto films =
        (folder.tag() & (kFilms | kInFilms)) != 0 ? ProjectCaches::Films::yes : ProjectCaches::Films::no;
    for (const ProjectCaches::Cache& cache : ProjectCaches::in(listing, films)) {
        if (!folder.canName(cache.name))
            continue;
        const std::string path = folder.pathOf(cache.name);
        const FolderTotals::Counter counter = counterIn(folder, cache.name, 0);
        const std::lock_guard lock(m_lock);
        m_caches.push_back({path, cache.note, counter});
        m_projectCaches.insert(path);
    }
}

void WalkVisitor::files(const TreeFolder& folder, std::span<const TreeFile> files)
{
    addToTotals(folder, files);
    std::vector<Walked> cands;
    std::vector<Cand> images;
    for (const TreeFile& file : files) {
        const std::string_view name = file.name;
        const std::int64_t size = file.status.allocatedBytes;
        const bool isCand = size >= kCandBytes;
        const bool isImage =
            size >= kImageBytes && (folder.tag() & kImages) != 0 && WalkRules::isImageName(name);
        if (name.starts_with('.') || (!isCand && !isImage))
            continue;
        if (!folder.canName(name))
            continue;
        Cand cand{folder.pathOf(name), size, file.status.modified, FileStamp::of(file.status),
                  file.status.links > 1};
        if (!PathText::isValidUtf8(cand.path) || Safety::isProtected(cand.path))
            continue;
        if (isImage)
            images.push_back(cand);
        if (isCand)
            cands.push_back({std::move(cand), file.status.identity});
    }
    if (images.empty() && cands.empty())
        return;
    const std::lock_guard lock(m_lock);
    std::move(images.begin(), images.end(), std::back_inserter(m_images));
    std::move(cands.begin(), cands.end(), std::back_inserter(m_cands));
}

void WalkVisitor::addToTotals(const TreeFolder& folder, std::span<const TreeFile> files)
{
    const FolderTotals::Counter counter = counterOf(folder);
    if (counter == FolderTotals::kNone)
        return;
    std::int64_t sum = 0;
    std::unique_lock lock(m_lock, std::defer_lock);
    for (const TreeFile& file : files) {
        if (file.status.links > 1) {
            if (!lock.owns_lock())
                lock.lock();
            if (!m_linked.insert(file.status.identity).second)
                continue;
        }
        sum = cappedAdd(sum, file.status.allocatedBytes);
    }
    m_totals->add(counter, sum);
}

/// Hidden items and skipped top-level folders never get here.
bool WalkVisitor::isCounted(const TreeFolder& folder, std::string_view name) const
{
    const bool isTop = m_scope == Scope::homeFolder && folder.parent() == nullptr;
    return !name.starts_with('.') && !(isTop && WalkRules::isLeftOutAtTop(name));
}

void WalkVisitor::listed(const TreeFolder& folder, const FolderChunk& entries)
{
    std::int64_t count = 0;
    entries.forEach([&](const FolderEntry& entry) { count += isCounted(folder, entry.name) ? 1 : 0; });
    m_progress.tick(count, [&](std::int64_t item) {
        std::string path;
        entries.forEach([&](const FolderEntry& entry) {
            if (isCounted(folder, entry.name) && item-- == 0)
                path = folder.pathOf(entry.name);
        });
        return path;
    });
}

std::vector<Cand> WalkVisitor::takeCands()
{
    std::sort(m_cands.begin(), m_cands.end(),
              [](const Walked& a, const Walked& b) { return comesBefore(a.cand, b.cand); });
    std::unordered_set<FileIdentity, FileIdentityHash> seen;
    std::vector<Cand> cands;
    cands.reserve(m_cands.size());
    for (Walked& walked : m_cands) {
        if (!walked.cand.hasOtherNames || seen.insert(walked.identity).second)
            cands.push_back(std::move(walked.cand));
    }
    m_cands.clear();
    return cands;
}

std::vector<Cand> WalkVisitor::takeImages()
{
    std::sort(m_images.begin(), m_images.end(), comesBefore);
    return std::move(m_images);
}

std::vector<WalkedCaches::Folder> WalkVisitor::takeCaches()
{
    std::ranges::sort(m_caches, {}, &WalkedCaches::Folder::path);
    return std::move(m_caches);
}

std::set<std::string, std::less<>> WalkVisitor::takeWorkTrees()
{
    return std::move(m_workTrees);
}

} // namespace orlen

#include "scan/walk/WalkVisitor.h"

#include "clean/Safety.h"
#include "platform/text/PathText.h"
#include "scan/ScanProgress.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <unordered_set>

namespace orlen {

namespace {

constexpr std::int64_t kImageBytes = 20'000;
constexpr std::size_t kImageLimit = 1'500;

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
    if (!parent.canName(name) || Safety::protectsContents(parent.pathOf(name)))
        return std::nullopt;
    return parent.tag() | ((marks & WalkRules::kImageFolder) != 0 ? kImages : 0);
}

bool WalkVisitor::accept(const TreeFolder& folder, const TreeListing& listing)
{
    // The given folders themselves are always walked, whatever they contain.
    if (folder.parent() == nullptr)
        return true;
    switch (WalkRules::natureOf(listing)) {
    case WalkRules::FolderNature::plain:
        return true;
    case WalkRules::FolderNature::package:
    case WalkRules::FolderNature::mirrored:
        return false;
    case WalkRules::FolderNature::taggedCache:
        break;
    }
    const std::lock_guard lock(m_lock);
    m_taggedCaches.push_back(folder.path());
    return false;
}

void WalkVisitor::files(const TreeFolder& folder, std::span<const TreeFile> files)
{
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
        Cand cand{folder.pathOf(name), size, file.status.modified, FileStamp::of(file.status)};
        if (!PathText::isValidUtf8(cand.path) || Safety::isProtected(cand.path))
            continue;
        if (isImage)
            images.push_back(cand);
        if (isCand)
            cands.push_back({std::move(cand), file.status.identity, file.status.links > 1});
    }
    if (!images.empty())
        addImages(std::move(images));
    if (!cands.empty()) {
        const std::lock_guard lock(m_lock);
        std::move(cands.begin(), cands.end(), std::back_inserter(m_cands));
    }
}

/// Keeps the first images by path.
void WalkVisitor::addImages(std::vector<Cand> images)
{
    const std::lock_guard lock(m_lock);
    for (Cand& image : images) {
        m_images.push_back(std::move(image));
        std::push_heap(m_images.begin(), m_images.end(), comesBefore);
        if (m_images.size() > kImageLimit) {
            std::pop_heap(m_images.begin(), m_images.end(), comesBefore);
            m_images.pop_back();
        }
    }
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
        if (!walked.hasOtherNames || seen.insert(walked.identity).second)
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

std::vector<std::string> WalkVisitor::takeTaggedCaches()
{
    std::sort(m_taggedCaches.begin(), m_taggedCaches.end());
    return std::move(m_taggedCaches);
}

} // namespace orlen

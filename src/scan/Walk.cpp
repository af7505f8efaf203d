#include "scan/Walk.h"

#include "clean/Safety.h"
#include "platform/PathText.h"
#include "platform/Places.h"
#include "scan/FS.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/walk/WalkRules.h"
#include "scan/walk/WalkVisitor.h"

#include <algorithm>
#include <iterator>

namespace orlen::Walk {

namespace {

constexpr std::int64_t kTaggedCacheBytes = 1'000'000;
constexpr std::size_t kTaggedCacheLimit = 600;

/// Measures the folders that call themselves caches and keeps the large ones, largest first.
std::vector<FileEntry> taggedCacheEntries(const std::vector<std::string>& folders,
                                          const std::stop_token& stop)
{
    std::vector<FileEntry> entries = FS::entries(folders, "Build output marked as a cache", stop);
    std::erase_if(entries, [](const FileEntry& entry) { return entry.size < kTaggedCacheBytes; });
    std::stable_sort(entries.begin(), entries.end(),
                     [](const FileEntry& a, const FileEntry& b) { return a.size > b.size; });
    if (entries.size() > kTaggedCacheLimit)
        entries.resize(kTaggedCacheLimit);
    for (FileEntry& entry : entries)
        entry.rating = Rating::review;
    return entries;
}

Found walk(WalkVisitor::Scope scope, const std::vector<TreeRoot>& roots, ScanProgress& progress,
           const std::stop_token& stop)
{
    PathMarks marks;
    WalkRules::markImageFolders(Places::current(), marks);
    WalkVisitor visitor(scope, progress);
    TreeScanOptions options;
    options.crossing = Crossing::localDisks;
    options.marks = &marks;
    scanTrees(roots, visitor, *CurrentMounts::table(), options, stop);
    return {visitor.takeCands(), visitor.takeImages(), taggedCacheEntries(visitor.takeTaggedCaches(), stop)};
}

/// The folders in path order, without those that lie in another one.
std::vector<std::string> outermost(std::vector<std::string> folders)
{
    std::sort(folders.begin(), folders.end());
    std::vector<std::string> kept;
    for (std::string& folder : folders) {
        const bool isInside = std::any_of(kept.begin(), kept.end(), [&](const std::string& outer) {
            return PathText::isAtOrBelow(folder, outer);
        });
        if (!isInside)
            kept.push_back(std::move(folder));
    }
    return kept;
}

} // namespace

Found home(ScanProgress& progress, const std::stop_token& stop)
{
    if (!Places::current().isHomeUsable)
        return {};
    return walk(WalkVisitor::Scope::homeFolder, {{Safety::home(), 0}}, progress, stop);
}

Found folders(const std::vector<std::string>& roots, ScanProgress& progress, const std::stop_token& stop)
{
    std::vector<std::string> paths;
    paths.reserve(roots.size());
    for (const std::string& root : roots)
        paths.push_back(Places::current().normalized(root));
    std::vector<TreeRoot> trees;
    for (std::string& path : outermost(std::move(paths)))
        trees.push_back({std::move(path), WalkVisitor::kImages});
    return walk(WalkVisitor::Scope::givenFolders, trees, progress, stop);
}

std::vector<Cand> duplicateInput(const Found& found)
{
    std::vector<Cand> input = found.cands;
    std::copy_if(found.images.begin(), found.images.end(), std::back_inserter(input),
                 [](const Cand& image) { return image.size < WalkVisitor::kCandBytes; });
    return input;
}

} // namespace orlen::Walk

#include "scan/walk/Walk.h"

#include "clean/Safety.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/BreakdownFolders.h"
#include "scan/FolderTotals.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/walk/WalkRules.h"
#include "scan/walk/WalkVisitor.h"
#include "scan/walk/WalkedCaches.h"
#include "scan/walk/WorkTrees.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace orlen::Walk {

namespace {

/// Drops files that have another name among the candidates.
void dropKnown(std::vector<Cand>& files, const std::vector<Cand>& cands)
{
    std::unordered_set<FileIdentity, FileIdentityHash> known;
    for (const Cand& cand : cands) {
        if (!files.empty() && cand.stamp)
            known.insert(cand.stamp->identity);
    }
    std::erase_if(files, [&](const Cand& file) { return known.contains(file.stamp->identity); });
}

/// The storage breakdown measures these, with all that a walk leaves out.
void markCountedElsewhere(const MountTable& mounts, PathMarks& marks)
{
    const Places& places = Places::current();
    for (const BreakdownFolders::Folder& folder : BreakdownFolders::find(places, mounts))
        marks.mark(places.normalized(folder.path), WalkRules::kCountedElsewhere);
}

Found walk(WalkVisitor::Scope scope, const std::vector<TreeRoot>& roots, ScanProgress& progress,
           const std::stop_token& stop, const Options& asked)
{
    PathMarks marks;
    WalkRules::markMediaFolders(Places::current(), marks);
    const auto mounts = CurrentMounts::table();
    if (asked.totals != nullptr)
        markCountedElsewhere(*mounts, marks);
    WalkVisitor visitor(scope, progress, asked.totals);
    TreeScanOptions options;
    options.crossing = Crossing::localDisks;
    options.marks = &marks;
    options.unreadable = asked.unreadable;
    scanTrees(roots, visitor, *mounts, options, stop);
    WalkedCaches::Found caches =
        WalkedCaches::measure(visitor.takeCaches(), asked.largeBytes, asked.unreadable, asked.totals, stop);
    Found found{visitor.takeCands(), visitor.takeImages(), std::move(caches.entries),
                std::move(caches.largeFiles)};
    dropKnown(found.largeInCaches, found.cands);
    const WorkTrees workTrees(visitor.takeWorkTrees(), roots);
    workTrees.mark(found.cands);
    workTrees.mark(found.images);
    return found;
}

/// The folders in path order, without those inside another.
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

Found home(ScanProgress& progress, const std::stop_token& stop, const Options& options)
{
    if (!Places::current().isHomeUsable)
        return {};
    const FolderTotals::Counter counter =
        options.totals == nullptr ? FolderTotals::kNone : options.totals->addRoot(Safety::home());
    return walk(WalkVisitor::Scope::homeFolder, {{Safety::home(), WalkVisitor::tagOf(counter)}}, progress,
                stop, options);
}

Found folders(const std::vector<std::string>& roots, ScanProgress& progress, const std::stop_token& stop,
              const Options& options)
{
    std::vector<std::string> paths;
    paths.reserve(roots.size());
    for (const std::string& root : roots)
        paths.push_back(Places::current().normalized(root));
    std::vector<TreeRoot> trees;
    for (std::string& path : outermost(std::move(paths)))
        trees.push_back({std::move(path), WalkVisitor::kImages | WalkVisitor::tagOf(FolderTotals::kNone)});
    return walk(WalkVisitor::Scope::givenFolders, trees, progress, stop, options);
}

std::vector<Cand> duplicateInput(const Found& found)
{
    std::vector<Cand> input = found.cands;
    std::copy_if(found.images.begin(), found.images.end(), std::back_inserter(input),
                 [](const Cand& image) { return image.size < WalkVisitor::kCandBytes; });
    return input;
}

} // namespace orlen::Walk

#include "scan/tree/TreeScan.h"

#include "scan/tree/TreeScanJob.h"

namespace orlen {

bool TreeVisitor::accept(const TreeFolder& /*folder*/, const TreeListing& /*listing*/)
{
    return true;
}

void TreeVisitor::listed(const TreeFolder& /*folder*/, const FolderChunk& /*entries*/) {}

void scanTrees(std::span<const TreeRoot> roots, TreeVisitor& visitor, const MountTable& mounts,
               const TreeScanOptions& options, const std::stop_token& stop)
{
    if (roots.empty())
        return;
    TreeScanJob job(roots, visitor, mounts, options, stop);
    DiskWorkers::shared().run(job);
}

} // namespace orlen

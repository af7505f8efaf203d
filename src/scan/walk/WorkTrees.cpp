#include "scan/walk/WorkTrees.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

#include <utility>

namespace orlen {

WorkTrees::WorkTrees(std::set<std::string, std::less<>> found, std::span<const TreeRoot> roots)
    : m_folders(std::move(found))
{
    for (const TreeRoot& root : roots) {
        for (std::string_view at = root.path;
             PathText::isAtOrBelow(at, Safety::home()) && at != Safety::home(); at = PathText::parent(at)) {
            if (exists(PathText::join(at, ".git")))
                m_folders.emplace(at);
        }
    }
}

bool WorkTrees::hold(std::string_view path) const
{
    for (std::string_view at = PathText::parent(path); at.size() > 1; at = PathText::parent(at)) {
        if (m_folders.contains(at))
            return true;
    }
    return false;
}

void WorkTrees::mark(std::vector<Cand>& cands) const
{
    if (m_folders.empty())
        return;
    for (Cand& cand : cands)
        cand.isInRepository = hold(cand.path);
}

} // namespace orlen

#include "app/KeptTies.h"

#include "model/PathCover.h"
#include "model/PathSelection.h"
#include "platform/text/PathText.h"

namespace orlen {

namespace {

/// Whether a ticked folder has both in it, which then move as a whole.
bool isInOneFolder(const std::set<std::string>& ticked, const PathTree& listed, int kept, int copy)
{
    for (int folder = kept; folder != PathTree::kNone; folder = listed.holder(folder)) {
        if (copy >= folder && copy < listed.end(folder))
            return ticked.contains(listed.path(folder));
    }
    return false;
}

} // namespace

KeptTies::KeptTies(const std::vector<CopySet>& sets, const PathTree& listed)
{
    PathCover covers;
    for (int node = 0; node < listed.size() && !sets.empty(); ++node)
        covers.add(listed.path(node));
    for (const CopySet& set : sets) {
        const std::string_view kept = covers.of(set.kept.path);
        if (kept.empty())
            continue;
        for (const std::string& path : set.copies) {
            if (const std::string_view copy = covers.of(path); !copy.empty() && copy != kept)
                m_ties.push_back({listed.find(kept), listed.find(copy)});
        }
    }
}

bool KeptTies::keepApart(std::set<std::string>& ticked, const PathTree& listed, std::string_view last) const
{
    bool isChanged = false;
    for (const auto& [kept, copy] : m_ties) {
        if (!ticked.contains(listed.path(kept)) || !ticked.contains(listed.path(copy)) ||
            isInOneFolder(ticked, listed, kept, copy))
            continue;
        const bool isKeptLast = !last.empty() && PathText::isAtOrBelow(listed.path(kept), last);
        PathSelection::untick(ticked, listed, listed.path(isKeptLast ? copy : kept));
        isChanged = true;
    }
    return isChanged;
}

} // namespace orlen

#include "window/diskmap/RatedPaths.h"

#include "model/PathTree.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <array>

namespace orlen {

RatedPaths::RatedPaths(const std::vector<Finding>& findings)
{
    for (const Finding& finding : findings) {
        if (!finding.cleanable)
            continue;
        for (const FileEntry& entry : finding.items)
            m_items.push_back({entry.path, entry.size, finding.effectiveRating(entry)});
    }
    // The most careful of a path first: only that one stays.
    std::sort(m_items.begin(), m_items.end(), [](const Item& a, const Item& b) {
        return a.path != b.path ? PathTree::comesBefore(a.path, b.path) : a.rating > b.rating;
    });
    const auto hasSamePath = [](const Item& a, const Item& b) { return a.path == b.path; };
    m_items.erase(std::unique(m_items.begin(), m_items.end(), hasSamePath), m_items.end());
}

std::vector<RatedPaths::Item>::const_iterator RatedPaths::from(std::string_view path) const
{
    return std::ranges::lower_bound(m_items, path, PathTree::comesBefore, &Item::path);
}

std::optional<Rating> RatedPaths::ratingOf(std::string_view path, std::int64_t size) const
{
    for (std::string_view at = path; at.size() > 1; at = PathText::parent(at)) {
        const auto found = from(at);
        if (found != m_items.end() && found->path == at)
            return found->rating;
    }
    return ratingOfMost(path, size);
}

std::optional<Rating> RatedPaths::ratingOfMost(std::string_view folder, std::int64_t size) const
{
    std::array<std::int64_t, 3> bytes{};
    std::int64_t listed = 0;
    std::string_view outermost;
    for (auto item = from(folder); item != m_items.end() && PathTree::isInside(item->path, folder); ++item) {
        if (!outermost.empty() && PathTree::isInside(item->path, outermost))
            continue;
        outermost = item->path;
        std::int64_t& sum = bytes[static_cast<std::size_t>(item->rating)];
        sum = cappedAdd(sum, item->size);
        listed = cappedAdd(listed, item->size);
    }
    if (listed == 0 || listed < size / 2)
        return std::nullopt;
    // Of as many bytes, the more careful rating.
    const auto most = std::max_element(bytes.rbegin(), bytes.rend());
    return static_cast<Rating>(bytes.rend() - most - 1);
}

} // namespace orlen

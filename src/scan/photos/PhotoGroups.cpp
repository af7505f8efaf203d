#include "scan/photos/PhotoGroups.h"

#include "scan/photos/KeeperChoice.h"
#include "scan/photos/OnAllCores.h"
#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <array>
#include <optional>

namespace orlen::PhotoGroups {

namespace {

using Members = std::vector<std::size_t>;

constexpr float kNearDuplicate = 0.32F;

/// What is missing in a damaged picture would be filled with anything.
bool takesPart(const PhotoInfo& photo)
{
    return photo.print && !photo.traits.isDamaged;
}

/// A group whose first member has a layout like that of a photo.
struct Candidate {
    float coarse = 0;
    std::size_t group = 0;
};

/// Of the groups from `first` on, those that may be worth a close look, in order. Many pages have one layout,
/// and to look closely at all of them would take minutes; what is really alike is among the nearest.
std::vector<Candidate> candidates(const PhotoInfo& photo, const std::vector<PhotoInfo>& photos,
                                  const std::vector<Members>& groups, std::size_t first)
{
    constexpr std::size_t kMost = 8;
    std::vector<Candidate> all;
    for (std::size_t group = first; group < groups.size(); ++group) {
        if (const auto coarse = coarseDistance(*photos[groups[group].front()].print, *photo.print))
            all.push_back({*coarse, group});
    }
    if (all.size() > kMost) {
        std::ranges::nth_element(all, all.begin() + kMost, {}, &Candidate::coarse);
        all.resize(kMost);
        std::ranges::sort(all, {}, &Candidate::group);
    }
    return all;
}

/// Of the groups from `first` on, the first whose first member the photo resembles. What is no number
/// resembles nothing.
std::optional<std::size_t> groupOf(const PhotoInfo& photo, const std::vector<PhotoInfo>& photos,
                                   const std::vector<Members>& groups, std::size_t first,
                                   const std::stop_token& stop)
{
    for (const Candidate& candidate : candidates(photo, photos, groups, first)) {
        if (stop.stop_requested())
            break;
        if (distance(*photos[groups[candidate.group].front()].print, *photo.print) < kNearDuplicate)
            return candidate.group;
    }
    return std::nullopt;
}

std::vector<Members> clusters(const std::vector<PhotoInfo>& photos, const std::stop_token& stop)
{
    constexpr std::size_t kBatch = 128;
    std::vector<Members> groups;
    for (std::size_t start = 0; start < photos.size(); start += kBatch) {
        // Looking closely at many that nearly resemble each other takes its time: on all cores for the groups
        // that there are, and one after the other for those that a batch itself makes.
        const std::size_t known = groups.size();
        std::array<std::optional<std::size_t>, kBatch> found;
        const std::size_t end = std::min(start + kBatch, photos.size());
        onAllCores(end - start, [&](std::size_t i) {
            const PhotoInfo& photo = photos[start + i];
            found[i] = takesPart(photo) ? groupOf(photo, photos, groups, 0, stop) : std::nullopt;
        });
        for (std::size_t i = start; i < end; ++i) {
            if (!takesPart(photos[i]))
                continue;
            const auto earlier = found[i - start];
            const auto group = earlier ? earlier : groupOf(photos[i], photos, groups, known, stop);
            if (stop.stop_requested())
                return groups;
            if (group)
                groups[*group].push_back(i);
            else
                groups.push_back({i});
        }
    }
    return groups;
}

Group withKeeper(const std::vector<PhotoInfo>& photos, Members members)
{
    const std::size_t keeper = KeeperChoice::keeper(photos, members);
    std::erase(members, keeper);
    return {keeper, std::move(members)};
}

} // namespace

std::vector<Group> of(const std::vector<PhotoInfo>& photos, const std::stop_token& stop)
{
    std::vector<Group> groups;
    for (Members& members : clusters(photos, stop)) {
        if (members.size() > 1)
            groups.push_back(withKeeper(photos, std::move(members)));
    }
    return groups;
}

} // namespace orlen::PhotoGroups

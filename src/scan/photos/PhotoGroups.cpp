#include "scan/photos/PhotoGroups.h"

#include "scan/photos/OnAllCores.h"
#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace orlen::PhotoGroups {

namespace {

using Members = std::vector<std::size_t>;

constexpr float kNearDuplicate = 0.32F;
constexpr double kSharpnessTie = 1.0;

/// Of the groups from `first` on, the first whose first member the photo resembles. What is no number
/// resembles nothing.
std::optional<std::size_t> groupOf(const PhotoInfo& photo, const std::vector<PhotoInfo>& photos,
                                   const std::vector<Members>& groups, std::size_t first,
                                   const std::stop_token& stop)
{
    for (std::size_t group = first; group < groups.size() && !stop.stop_requested(); ++group) {
        if (distance(*photos[groups[group].front()].print, *photo.print) < kNearDuplicate)
            return group;
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
            found[i] = photo.print ? groupOf(photo, photos, groups, 0, stop) : std::nullopt;
        });
        for (std::size_t i = start; i < end; ++i) {
            if (!photos[i].print)
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

bool isBetter(const PhotoInfo& photo, const PhotoInfo& keeper)
{
    if (std::abs(photo.sharpness - keeper.sharpness) > kSharpnessTie)
        return photo.sharpness > keeper.sharpness;
    return photo.cand.size > keeper.cand.size;
}

Group withKeeper(const std::vector<PhotoInfo>& photos, Members members)
{
    std::size_t keeper = members.front();
    for (const std::size_t member : members) {
        if (isBetter(photos[member], photos[keeper]))
            keeper = member;
    }
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

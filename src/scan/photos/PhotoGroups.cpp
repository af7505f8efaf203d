#include "scan/photos/PhotoGroups.h"

#include <algorithm>
#include <cmath>

namespace orlen::PhotoGroups {

namespace {

using Members = std::vector<std::size_t>;

constexpr float kNearDuplicate = 0.32F;
constexpr double kSharpnessTie = 1.0;

std::vector<Members> clusters(const std::vector<PhotoInfo>& photos, const std::stop_token& stop)
{
    std::vector<Members> groups;
    for (std::size_t i = 0; i < photos.size(); ++i) {
        if (!photos[i].print)
            continue;
        const auto alike = std::find_if(groups.begin(), groups.end(), [&](const Members& group) {
            // Looking closely at many that nearly resemble each other takes its time. What is no number
            // resembles nothing.
            return !stop.stop_requested() &&
                   photos[group.front()].print->distance(*photos[i].print) < kNearDuplicate;
        });
        if (stop.stop_requested())
            break;
        if (alike == groups.end())
            groups.push_back({i});
        else
            alike->push_back(i);
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

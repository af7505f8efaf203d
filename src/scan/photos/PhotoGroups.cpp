#include "scan/photos/PhotoGroups.h"

#include "scan/photos/KeeperChoice.h"
#include "scan/photos/OnAllCores.h"
#include "scan/photos/PhotoClusters.h"
#include "scan/photos/UnpackedTiles.h"

#include <utility>

namespace orlen::PhotoGroups {

namespace {

Group withKeeper(const std::vector<PhotoInfo>& photos, PhotoClusters::Members members, UnpackedTiles& tiles)
{
    const std::size_t keeper = KeeperChoice::keeper(photos, members, tiles);
    std::erase(members, keeper);
    return {keeper, std::move(members)};
}

} // namespace

std::vector<Group> of(const std::vector<PhotoInfo>& photos, const std::stop_token& stop)
{
    UnpackedTiles tiles(photos);
    std::vector<PhotoClusters::Members> clusters = PhotoClusters::of(photos, tiles, stop);
    std::erase_if(clusters, [](const PhotoClusters::Members& members) { return members.size() < 2; });
    std::vector<Group> groups(clusters.size());
    onAllCores(clusters.size(),
               [&](std::size_t i) { groups[i] = withKeeper(photos, std::move(clusters[i]), tiles); });
    return groups;
}

} // namespace orlen::PhotoGroups

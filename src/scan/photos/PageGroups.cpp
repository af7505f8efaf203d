#include "scan/photos/PageGroups.h"

#include "platform/images/ImageWorkers.h"
#include "scan/photos/KeeperChoice.h"
#include "scan/photos/OnAllCores.h"
#include "scan/photos/PageCheck.h"
#include "scan/photos/PhotoRules.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

namespace orlen {

namespace {

using PhotoGroups::Group;

/// Pictures that are read once more in a scan, at the most.
constexpr std::size_t kMostRead = 400;

bool isPage(const PhotoInfo& photo)
{
    const auto verdict = PhotoRules::verdict(photo);
    return verdict && (verdict->kind == FindingKind::receipts || verdict->kind == FindingKind::screenshots);
}

bool hasPages(const std::vector<PhotoInfo>& photos, const Group& group)
{
    return isPage(photos[group.keeper]) ||
           std::ranges::any_of(group.others, [&](std::size_t other) { return isPage(photos[other]); });
}

/// The sets of the same page that a group is made of, each with its own keeper.
std::vector<Group> samePages(const std::vector<PhotoInfo>& photos, Group group,
                             const PhotoAnalyzer::CloserLook& look, const std::stop_token& stop)
{
    std::map<std::size_t, std::optional<RgbImage>> seen;
    const auto sight = [&](std::size_t photo) -> const std::optional<RgbImage>& {
        const auto [place, isNew] = seen.try_emplace(photo);
        if (isNew)
            place->second = look(photos[photo].cand.path);
        return place->second;
    };
    std::vector<Group> sets;
    while (!group.others.empty() && !stop.stop_requested()) {
        const std::optional<RgbImage>& keeper = sight(group.keeper);
        const auto isOther = [&](std::size_t other) {
            return !keeper || !sight(other) || !PageCheck::isSamePage(*keeper, *sight(other));
        };
        std::vector<std::size_t> rest;
        std::ranges::copy_if(group.others, std::back_inserter(rest), isOther);
        std::erase_if(group.others,
                      [&](std::size_t other) { return std::ranges::binary_search(rest, other); });
        if (!group.others.empty())
            sets.push_back(std::move(group));
        if (rest.size() < 2)
            break;
        const std::size_t next = KeeperChoice::keeper(photos, rest);
        std::erase(rest, next);
        group = {next, std::move(rest)};
    }
    return sets;
}

} // namespace

std::vector<Group> PageGroups::checked(const std::vector<PhotoInfo>& photos, std::vector<Group> groups,
                                       const PhotoAnalyzer::CloserLook& look, const std::stop_token& stop)
{
    std::vector<std::vector<Group>> sets(groups.size());
    std::vector<std::size_t> ofPages;
    std::size_t read = 0;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (!hasPages(photos, groups[i])) {
            sets[i].push_back(std::move(groups[i]));
        } else if (read + groups[i].others.size() < kMostRead) {
            read += groups[i].others.size() + 1;
            ofPages.push_back(i);
        }
    }
    onAllCores(ofPages.size(), [&](std::size_t i) {
        sets[ofPages[i]] = samePages(photos, std::move(groups[ofPages[i]]), look, stop);
    });
    std::vector<Group> all;
    for (std::vector<Group>& some : sets)
        std::ranges::move(some, std::back_inserter(all));
    return all;
}

PhotoAnalyzer::CloserLook PageGroups::lookingThrough(ImageWorkers& workers, std::stop_token stop)
{
    return [&workers, stop = std::move(stop)](const std::string& path) -> std::optional<RgbImage> {
        std::optional<SmallPicture> picture = workers.smallPicture(path, PageCheck::kDetail, stop);
        return picture ? std::optional(std::move(picture->image)) : std::nullopt;
    };
}

} // namespace orlen

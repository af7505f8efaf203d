#include "scan/photos/PhotoClusters.h"

#include "scan/photos/OnAllCores.h"
#include "scan/photos/PrintDistance.h"
#include "scan/photos/PrintIndex.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <utility>

// One photo after the other would leave all cores but one idle. So a batch of them is looked up together in
// the index of the first members so far, and among themselves as if each of them would become a first member.
// Whom a photo has to be compared with closely is then known, but for the few cases in which one of the
// nearest joins a cluster itself. These comparisons are made on all cores, and what came out is used when the
// batch is gone through in order.

namespace orlen {

namespace {

using PhotoClusters::Members;

/// Many pages have one layout, and to look closely at all of them would take minutes; what is really alike is
/// among the nearest.
constexpr std::size_t kMostCompared = 8;
constexpr std::size_t kBatch = 256;
constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();

/// What is missing in a damaged picture would be filled with anything.
bool takesPart(const PhotoInfo& photo)
{
    return photo.print && !photo.traits.isDamaged;
}

/// An earlier photo with a layout like that of a photo.
struct Candidate {
    float coarse = 0;
    std::size_t photo = 0;
    std::optional<bool> isAlike; ///< if they were compared closely
};

/// A photo of a batch, and its candidates, nearest first.
struct Newcomer {
    std::size_t photo = 0;
    std::vector<Candidate> candidates;
};

class Clusters {
public:
    Clusters(const std::vector<PhotoInfo>& photos, const std::stop_token& stop)
        : m_photos(photos), m_stop(stop), m_clusterOf(photos.size(), kAll)
    {
    }

    void add(std::span<const std::size_t> batch)
    {
        std::vector<Newcomer> newcomers = lookedUp(batch);
        compare(newcomers);
        for (Newcomer& newcomer : newcomers) {
            if (m_stop.stop_requested())
                return;
            place(newcomer);
        }
    }

    [[nodiscard]] std::vector<Members> taken() { return std::move(m_clusters); }

private:
    [[nodiscard]] const FeaturePrint& print(std::size_t photo) const { return *m_photos[photo].print; }
    [[nodiscard]] bool isFirst(std::size_t photo) const
    {
        return m_clusterOf[photo] != kAll && m_clusters[m_clusterOf[photo]].front() == photo;
    }

    [[nodiscard]] std::vector<Newcomer> lookedUp(std::span<const std::size_t> batch) const;
    void compare(std::vector<Newcomer>& newcomers) const;
    void place(Newcomer& newcomer);

    const std::vector<PhotoInfo>& m_photos;
    const std::stop_token& m_stop;
    std::vector<Members> m_clusters;
    std::vector<std::size_t> m_clusterOf; ///< per photo
    PrintIndex m_firsts;                  ///< the first member of each cluster
};

std::vector<Newcomer> Clusters::lookedUp(std::span<const std::size_t> batch) const
{
    constexpr std::size_t kTogether = 16;
    PrintIndex among;
    std::vector<FeaturePrint::Direction> directions;
    for (const std::size_t photo : batch) {
        directions.push_back(print(photo).direction());
        among.add(directions.back());
    }
    std::vector<Newcomer> newcomers(batch.size());
    onAllCores((batch.size() + kTogether - 1) / kTogether, [&](std::size_t part) {
        const std::size_t first = part * kTogether;
        const auto some = std::span(directions).subspan(first, std::min(kTogether, batch.size() - first));
        const auto earlier = m_firsts.near(some, kMostCompared);
        const auto beside = among.near(some, kAll);
        for (std::size_t i = 0; i < some.size(); ++i) {
            Newcomer& newcomer = newcomers[first + i];
            newcomer.photo = batch[first + i];
            for (const PrintIndex::Near& near : earlier[i])
                newcomer.candidates.push_back({near.coarse, m_clusters[near.number].front(), {}});
            for (const PrintIndex::Near& near : beside[i]) {
                if (near.number < first + i)
                    newcomer.candidates.push_back({near.coarse, batch[near.number], {}});
            }
            std::ranges::sort(newcomer.candidates, {}, [](const Candidate& candidate) {
                return std::pair(candidate.coarse, candidate.photo);
            });
        }
    });
    return newcomers;
}

void Clusters::compare(std::vector<Newcomer>& newcomers) const
{
    // Each tile is unpacked once.
    std::map<std::size_t, FeaturePrint::Tile> tiles;
    std::vector<std::pair<std::size_t, Candidate*>> pairs;
    for (Newcomer& newcomer : newcomers) {
        for (std::size_t i = 0; i < std::min(kMostCompared, newcomer.candidates.size()); ++i) {
            pairs.emplace_back(newcomer.photo, &newcomer.candidates[i]);
            tiles[newcomer.photo];
            tiles[newcomer.candidates[i].photo];
        }
    }
    std::vector<std::pair<const std::size_t, FeaturePrint::Tile>*> all;
    all.reserve(tiles.size());
    for (auto& tile : tiles)
        all.push_back(&tile);
    onAllCores(all.size(), [&](std::size_t i) { all[i]->second = print(all[i]->first).tile(); });
    onAllCores(pairs.size(), [&](std::size_t i) {
        const auto& [photo, candidate] = pairs[i];
        if (!m_stop.stop_requested())
            candidate->isAlike = fineDistance(candidate->coarse, tiles.at(candidate->photo),
                                              tiles.at(photo)) < kNearDuplicateLimit;
    });
}

void Clusters::place(Newcomer& newcomer)
{
    std::vector<Candidate>& candidates = newcomer.candidates;
    std::erase_if(candidates, [this](const Candidate& candidate) { return !isFirst(candidate.photo); });
    candidates.resize(std::min(candidates.size(), kMostCompared));
    std::ranges::sort(candidates, {}, &Candidate::photo);
    const auto found = std::ranges::find_if(candidates, [&](const Candidate& candidate) {
        return candidate.isAlike
                   ? *candidate.isAlike
                   : distance(print(candidate.photo), print(newcomer.photo)) < kNearDuplicateLimit;
    });
    if (found != candidates.end()) {
        m_clusterOf[newcomer.photo] = m_clusterOf[found->photo];
        m_clusters[m_clusterOf[found->photo]].push_back(newcomer.photo);
        return;
    }
    m_clusterOf[newcomer.photo] = m_clusters.size();
    m_clusters.push_back({newcomer.photo});
    m_firsts.add(print(newcomer.photo).direction());
}

} // namespace

std::vector<Members> PhotoClusters::of(const std::vector<PhotoInfo>& photos, const std::stop_token& stop)
{
    std::vector<std::size_t> taking;
    for (std::size_t i = 0; i < photos.size(); ++i) {
        if (takesPart(photos[i]))
            taking.push_back(i);
    }
    Clusters clusters(photos, stop);
    for (std::size_t first = 0; first < taking.size() && !stop.stop_requested(); first += kBatch)
        clusters.add(std::span(taking).subspan(first, std::min(kBatch, taking.size() - first)));
    return clusters.taken();
}

} // namespace orlen

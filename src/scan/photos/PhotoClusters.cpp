#include "scan/photos/PhotoClusters.h"

#include "scan/photos/OnAllCores.h"
#include "scan/photos/Prefetch.h"
#include "scan/photos/PrintDistance.h"
#include "scan/photos/PrintIndex.h"
#include "scan/photos/QuickLook.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <ranges>
#include <span>
#include <utility>

// One photo after the other would leave all cores but one idle. So a batch of them is looked up together in
// the index of the first members so far, and among themselves as if each of them would become a first member.
// Whom a photo has to be compared with is then known, but for the few cases in which one of the nearest joins
// a cluster itself. These comparisons are made on all cores, and what came out is used when the batch is gone
// through in order.
//
// Of a crowd of pages with one layout each page has thousands of candidates, so what is done for one photo is
// bounded: a quick look at the nearest, and a close one at the nearest of those that it leaves. A photo that
// was looked at closely in vain again and again stands in a crowd; of all such candidates only the one that
// the quick look found most like the newcomer gets a close look.

namespace orlen {

namespace {

using PhotoClusters::Members;

/// What is really alike is among the nearest.
constexpr std::size_t kMostCompared = 8;
constexpr std::size_t kMostClosely = 4;
constexpr std::uint8_t kCrowd = 4; ///< close looks in vain
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
    std::optional<float> hope;   ///< if the outlines were compared
    std::optional<bool> isAlike; ///< if they were compared closely
};

/// A photo of a batch, and its candidates, nearest first.
struct Newcomer {
    std::size_t photo = 0;
    std::vector<Candidate> candidates;
};

/// The candidates that are compared.
template <typename AnyNewcomer>
auto compared(AnyNewcomer& newcomer)
{
    const std::span candidates(newcomer.candidates);
    return candidates.first(std::min(candidates.size(), kMostCompared));
}

class Clusters {
public:
    Clusters(const std::vector<PhotoInfo>& photos, UnpackedTiles& tiles, const std::stop_token& stop)
        : m_photos(photos), m_tiles(tiles), m_stop(stop), m_clusterOf(photos.size(), kAll),
          m_inVain(photos.size())
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
        // Only now, so that what was compared ahead is what is asked for.
        for (const Newcomer& newcomer : newcomers)
            count(newcomer);
    }

    [[nodiscard]] std::vector<Members> taken() { return std::move(m_clusters); }

private:
    [[nodiscard]] const FeaturePrint& print(std::size_t photo) const { return *m_photos[photo].print; }
    [[nodiscard]] bool isFirst(std::size_t photo) const
    {
        return m_clusterOf[photo] != kAll && m_clusters[m_clusterOf[photo]].front() == photo;
    }

    [[nodiscard]] std::vector<Newcomer> lookedUp(std::span<const std::size_t> batch) const;
    void compare(std::vector<Newcomer>& newcomers);
    [[nodiscard]] std::vector<Candidate*> hopeful(Newcomer& newcomer) const;
    [[nodiscard]] const Candidate* match(Newcomer& newcomer) const;
    void place(Newcomer& newcomer);
    void count(const Newcomer& newcomer);

    const std::vector<PhotoInfo>& m_photos;
    UnpackedTiles& m_tiles;
    const std::stop_token& m_stop;
    std::vector<Members> m_clusters;
    std::vector<std::size_t> m_clusterOf; ///< per photo
    PrintIndex m_firsts;                  ///< the first member of each cluster
    std::vector<std::uint8_t> m_inVain;   ///< close looks at and for each photo, up to the limit
};

std::vector<Newcomer> Clusters::lookedUp(std::span<const std::size_t> batch) const
{
    constexpr std::size_t kTogether = 32;
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
                newcomer.candidates.push_back({near.coarse, m_clusters[near.number].front(), {}, {}});
            for (const PrintIndex::Near& near : beside[i]) {
                if (near.number < first + i)
                    newcomer.candidates.push_back({near.coarse, batch[near.number], {}, {}});
            }
            std::ranges::sort(newcomer.candidates, {}, [](const Candidate& candidate) {
                return std::pair(candidate.coarse, candidate.photo);
            });
        }
    });
    return newcomers;
}

void Clusters::compare(std::vector<Newcomer>& newcomers)
{
    onAllCores(newcomers.size(), [&](std::size_t i) {
        if (!m_stop.stop_requested())
            (void)match(newcomers[i]);
    });
}

/// The nearest candidates that the newcomer may be like, from their outlines; of a crowd only the likeliest.
std::vector<Candidate*> Clusters::hopeful(Newcomer& newcomer) const
{
    std::optional<QuickLook> own;
    std::vector<Candidate*> found;
    Candidate* ofCrowd = nullptr;
    for (const Candidate& candidate : compared(newcomer)) {
        if (!candidate.hope)
            prefetch(print(candidate.photo).outline());
    }
    for (Candidate& candidate : compared(newcomer)) {
        if (found.size() == kMostClosely)
            break;
        if (!candidate.hope) {
            if (!own)
                own.emplace(print(newcomer.photo).outline());
            candidate.hope = QuickLook::hope(QuickLook(print(candidate.photo).outline()), *own);
        }
        if (*candidate.hope <= 0)
            continue;
        if (m_inVain[candidate.photo] < kCrowd)
            found.push_back(&candidate);
        else if (ofCrowd == nullptr || *candidate.hope > *ofCrowd->hope)
            ofCrowd = &candidate;
    }
    if (ofCrowd != nullptr)
        found.push_back(ofCrowd);
    return found;
}

/// The earliest candidate that the newcomer is like; null for none. What it finds out it notes, for the next
/// time when there are fewer candidates.
const Candidate* Clusters::match(Newcomer& newcomer) const
{
    std::vector<Candidate*> candidates = hopeful(newcomer);
    std::ranges::sort(candidates, {}, &Candidate::photo);
    for (Candidate* candidate : candidates) {
        if (!candidate->isAlike) {
            candidate->isAlike =
                areAlike(candidate->coarse, *m_tiles.of(candidate->photo), *m_tiles.of(newcomer.photo));
        }
        if (*candidate->isAlike)
            return candidate;
    }
    return nullptr;
}

void Clusters::place(Newcomer& newcomer)
{
    std::erase_if(newcomer.candidates,
                  [this](const Candidate& candidate) { return !isFirst(candidate.photo); });
    if (const Candidate* const found = match(newcomer)) {
        m_clusterOf[newcomer.photo] = m_clusterOf[found->photo];
        m_clusters[m_clusterOf[found->photo]].push_back(newcomer.photo);
        // For the choice of the keeper.
        m_tiles.keep(found->photo);
        m_tiles.keep(newcomer.photo);
        return;
    }
    m_clusterOf[newcomer.photo] = m_clusters.size();
    m_clusters.push_back({newcomer.photo});
    m_firsts.add(print(newcomer.photo).direction());
}

/// Counts for both what was looked at closely in vain; whoever is beside a crowd stands in it too. Where
/// there is nothing fine to compare, which leaves all hope, such a look costs nothing.
void Clusters::count(const Newcomer& newcomer)
{
    std::uint8_t& own = m_inVain[newcomer.photo];
    for (const Candidate& candidate : newcomer.candidates) {
        if (candidate.isAlike != false || candidate.hope >= 1.0F)
            continue;
        std::uint8_t& other = m_inVain[candidate.photo];
        if (std::max(own, other) < kCrowd) {
            ++own;
            ++other;
        } else {
            own = kCrowd;
            other = kCrowd;
        }
    }
}

} // namespace

std::vector<Members> PhotoClusters::of(const std::vector<PhotoInfo>& photos, UnpackedTiles& tiles,
                                       const std::stop_token& stop)
{
    std::vector<std::size_t> taking;
    for (std::size_t i = 0; i < photos.size(); ++i) {
        if (takesPart(photos[i]))
            taking.push_back(i);
    }
    Clusters clusters(photos, tiles, stop);
    for (std::size_t first = 0; first < taking.size() && !stop.stop_requested(); first += kBatch)
        clusters.add(std::span(taking).subspan(first, std::min(kBatch, taking.size() - first)));
    return clusters.taken();
}

} // namespace orlen

#include "scan/photos/KeeperChoice.h"

#include "scan/ScanTexts.h"
#include "scan/photos/PrintIndex.h"
#include "scan/photos/SamePicture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>

namespace orlen {

namespace {

std::int64_t pixels(const PhotoInfo& photo)
{
    return std::int64_t{photo.width} * photo.height;
}

std::int64_t bytes(const PhotoInfo& photo)
{
    return photo.cand.stamp ? photo.cand.stamp->length : photo.cand.size;
}

std::int64_t hasColours(const PhotoInfo& photo)
{
    return photo.traits.isGrey ? 0 : 1;
}

/// A drawing needs no more than a palette. Of a photo that was forced into one, the dithering shows: it does
/// not compress.
std::int64_t hasAllColours(const PhotoInfo& photo)
{
    constexpr std::int64_t kDrawnPixels = 4; // per byte, at least
    return photo.traits.hasPalette && bytes(photo) * kDrawnPixels > pixels(photo) ? 0 : 1;
}

std::int64_t isFromCamera(const PhotoInfo& photo)
{
    return photo.traits.isFromCamera ? 1 : 0;
}

std::int64_t isLossless(const PhotoInfo& photo)
{
    const PictureFormat format = photo.traits.format;
    const bool losesNothing = format == PictureFormat::png || format == PictureFormat::bmp;
    return losesNothing && !photo.traits.hasPalette ? 1 : 0;
}

/// What a copy may have lost, the worst loss first.
struct Loss {
    std::int64_t (*value)(const PhotoInfo& photo); ///< more is better
    Text note;
};
constexpr Loss kLosses[] = {
    {pixels, ScanTexts::kSmallerPicture},      {hasColours, ScanTexts::kColourlessPicture},
    {hasAllColours, ScanTexts::kFewerColours}, {isFromCamera, ScanTexts::kNoCameraData},
    {isLossless, ScanTexts::kMoreCompressed},  {bytes, ScanTexts::kSmallerFile},
};

/// A picture that is saved again with more bytes, or sharpened, gets larger and no better. So of two files
/// that say the same of themselves, the earlier one is what the other was made from, unless it is much
/// smaller.
bool isEarlier(const PhotoInfo& copy, const PhotoInfo& than)
{
    constexpr std::int64_t kMuch = 2;
    return copy.cand.modified < than.cand.modified && copy.cand.modified != TimePoint{} &&
           bytes(copy) * kMuch >= bytes(than);
}

bool lostLess(const PhotoInfo& copy, const PhotoInfo& than)
{
    for (const Loss& loss : kLosses) {
        if (loss.value == bytes && (isEarlier(copy, than) || isEarlier(than, copy)))
            return isEarlier(copy, than);
        const std::int64_t one = loss.value(copy);
        const std::int64_t other = loss.value(than);
        if (one != other)
            return one > other;
    }
    return false;
}

/// How far two shots of one sharpness may be apart: the measure itself is not more exact.
double margin(double sharpness)
{
    constexpr double kLeast = 1.0;
    constexpr double kShare = 0.025;
    return std::max(kLeast, kShare * sharpness);
}

bool isSofter(const PhotoInfo& shot, const PhotoInfo& than)
{
    return than.sharpness - shot.sharpness > margin(than.sharpness);
}

bool isBetterShot(const PhotoInfo& shot, const PhotoInfo& than)
{
    if (isSofter(than, shot))
        return true;
    return !isSofter(shot, than) && shot.cand.size > than.cand.size;
}

/// The different shots of a set, each in its best copy. A copy, and what is drawn over a picture, change the
/// layout little, so each is compared with the nearest shots only: a set may have thousands.
class Shots {
public:
    Shots(const std::vector<PhotoInfo>& photos, UnpackedTiles& tiles) : m_photos(photos), m_tiles(tiles) {}

    void add(std::size_t photo)
    {
        const SamePicture::Frame frame(m_photos[photo], m_tiles.of(photo));
        for (const std::size_t near : nearTo(frame)) {
            Copies& copies = m_shots[near];
            if (SamePicture::isCopy(copies.first, frame)) {
                if (lostLess(m_photos[photo], m_photos[copies.best]))
                    copies.best = photo;
                return;
            }
        }
        m_index.add(frame.photo->print->direction());
        m_shots.push_back({frame, photo});
    }

    /// A caption is sharper than any picture, so what is drawn over another shot is passed over.
    [[nodiscard]] std::size_t best()
    {
        std::size_t best = sharpest();
        while (isDrawnOverAnother(best)) {
            m_shots[best].isPassedOver = true;
            best = sharpest();
        }
        return m_shots[best].best;
    }

private:
    struct Copies {
        SamePicture::Frame first;
        std::size_t best = 0; ///< photo
        bool isPassedOver = false;
    };

    /// All of a usual set, of a large one the nearest; ascending.
    [[nodiscard]] std::vector<std::size_t> nearTo(const SamePicture::Frame& frame) const
    {
        constexpr std::size_t kMost = 16;
        if (m_shots.size() <= kMost) {
            std::vector<std::size_t> all(m_shots.size());
            std::iota(all.begin(), all.end(), std::size_t{0});
            return all;
        }
        const auto found = m_index.near({&frame.photo->print->direction(), 1}, kMost);
        std::vector<std::size_t> shots;
        for (const PrintIndex::Near& near : found.front())
            shots.push_back(near.number);
        std::ranges::sort(shots);
        return shots;
    }

    [[nodiscard]] bool isDrawnOverAnother(std::size_t shot) const
    {
        const SamePicture::Frame& frame = m_shots[shot].first;
        return std::ranges::any_of(nearTo(frame), [&](std::size_t near) {
            return near != shot && !m_shots[near].isPassedOver &&
                   SamePicture::isDrawnOver(frame, m_shots[near].first);
        });
    }

    /// There is always one that is not passed over: the last is drawn over none.
    [[nodiscard]] std::size_t sharpest() const
    {
        std::optional<std::size_t> best;
        for (std::size_t shot = 0; shot < m_shots.size(); ++shot) {
            const Copies& copies = m_shots[shot];
            if (!copies.isPassedOver &&
                (!best || isBetterShot(m_photos[copies.best], m_photos[m_shots[*best].best])))
                best = shot;
        }
        return *best;
    }

    const std::vector<PhotoInfo>& m_photos;
    UnpackedTiles& m_tiles;
    std::vector<Copies> m_shots;
    PrintIndex m_index; ///< of their first copies
};

Text reasonOfCopy(const PhotoInfo& copy, const PhotoInfo& keeper)
{
    const auto* const lost = std::find_if(std::begin(kLosses), std::end(kLosses), [&](const Loss& loss) {
        return loss.value(copy) < loss.value(keeper);
    });
    if (lost == std::end(kLosses))
        return ScanTexts::kIdenticalPicture;
    // Fewer bytes for as many pixels in the same format are a coarser encoding.
    const bool isCoarser = lost->value == bytes && copy.traits.format == keeper.traits.format &&
                           copy.traits.format != PictureFormat::other && isLossless(copy) == 0;
    return isCoarser ? ScanTexts::kMoreCompressed : lost->note;
}

} // namespace

std::size_t KeeperChoice::keeper(const std::vector<PhotoInfo>& photos,
                                 const std::vector<std::size_t>& members)
{
    UnpackedTiles tiles(photos);
    return keeper(photos, members, tiles);
}

std::size_t KeeperChoice::keeper(const std::vector<PhotoInfo>& photos,
                                 const std::vector<std::size_t>& members, UnpackedTiles& tiles)
{
    Shots shots(photos, tiles);
    for (const std::size_t member : members)
        shots.add(member);
    return shots.best();
}

Text KeeperChoice::reason(const PhotoInfo& other, const SamePicture::Frame& keeperFrame)
{
    const PhotoInfo& keeper = *keeperFrame.photo;
    if (SamePicture::isCopy(SamePicture::Frame(other), keeperFrame))
        return reasonOfCopy(other, keeper);
    if (isSofter(other, keeper))
        return ScanTexts::kSofterShot;
    return bytes(other) < bytes(keeper) ? ScanTexts::kSmallerShot : ScanTexts::kSimilarShot;
}

} // namespace orlen

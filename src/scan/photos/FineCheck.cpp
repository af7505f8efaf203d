#include "scan/photos/FineCheck.h"

#include "scan/photos/CommonMotion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

// Two pages of one layout, or two forms of one shop, agree in everything that is coarse. What tells them
// apart is whether the letters themselves are the same. So each block of one tile that has structure is
// looked for near its place in the other tile. Found alone means little, because some match can always be
// found in a text; but the blocks of changed copies of one picture have all moved together. So one common
// motion is fitted to all the finds, and how well they obey it counts a little. Then the motion is undone and
// the blocks are compared again where they must now be, which counts most: a turned copy agrees again,
// another page does not.
//
// The search for the motion looks at many places, so it is made in the previews; only the comparison after it
// needs all pixels. Most pairs are told apart by the strongest blocks of the previews alone.

namespace orlen {

namespace {

constexpr int kSearchReach = 9; ///< pixels of a tile that pictures may have moved
constexpr int kBendReach = 2;   ///< pixels that parts may differ from the common motion
constexpr std::size_t kFirstBlocks = 16;
constexpr std::size_t kAllBlocks = std::numeric_limits<std::size_t>::max();

/// The blocks of one picture looked up in another.
template <typename Search>
class LookUp {
public:
    /// A motion that is guessed saves time.
    LookUp(const Search& one, const Search& other, const CommonMotion& guessed)
        : m_one(one), m_other(other), m_blocks(one.texturedBlocks()), m_motion(guessed)
    {
    }

    /// Whether there are blocks enough to tell a common motion from chance.
    [[nodiscard]] bool hasStructure() const
    {
        constexpr std::size_t kLeastBlocks = 4;
        return m_blocks.size() >= kLeastBlocks;
    }

    /// Looks up the blocks with most structure until `count` are looked up, or all.
    void findBlocks(std::size_t count)
    {
        constexpr int kReach = (kSearchReach + Search::kScale - 1) / Search::kScale;
        for (std::size_t i = m_finds.size(); i < std::min(count, m_blocks.size()); ++i)
            m_finds.push_back(m_one.find(m_blocks[i], m_other, kReach, guessedMove(m_blocks[i])));
    }

    [[nodiscard]] const CommonMotion& motion() const { return m_motion; }
    void setMotion(const CommonMotion& motion) { m_motion = motion; }
    [[nodiscard]] const std::vector<BlockFind>& finds() const { return m_finds; }

    /// The share of the structure found that follows the motion.
    [[nodiscard]] float followingShare() const { return m_motion.followingShare(m_finds); }

private:
    [[nodiscard]] TilePlace guessedMove(TilePlace block) const
    {
        const auto middle = [](int from) {
            return static_cast<float>(Search::kScale) * (static_cast<float>(from) + Search::kBlock / 2.0F);
        };
        const auto inPixels = [](float move) {
            return static_cast<int>(std::lround(move / static_cast<float>(Search::kScale)));
        };
        const CommonMotion::Point move = m_motion.moveAt(middle(block.x), middle(block.y));
        return {inPixels(move.x), inPixels(move.y)};
    }

    const Search& m_one;
    const Search& m_other;
    const std::vector<TilePlace>& m_blocks;
    std::vector<BlockFind> m_finds;
    CommonMotion m_motion;
};

struct Motions {
    CommonMotion forward;
    CommonMotion backward;
};

/// Both ways.
template <typename Search>
struct LookUps {
    explicit LookUps(const Search& one, const Search& other, const Motions& guessed = {})
        : forward(one, other, guessed.forward), backward(other, one, guessed.backward)
    {
    }

    [[nodiscard]] bool haveStructure() const { return forward.hasStructure() || backward.hasStructure(); }
    void findBlocks(std::size_t count)
    {
        forward.findBlocks(count);
        backward.findBlocks(count);
        const auto [motion, motionBack] = CommonMotion::fitted(forward.finds(), backward.finds());
        forward.setMotion(motion);
        backward.setMotion(motionBack);
    }
    [[nodiscard]] float followingShare() const
    {
        return (forward.followingShare() + backward.followingShare()) / 2;
    }

    LookUp<Search> forward;
    LookUp<Search> backward;
};

/// The motions that the strongest blocks of previews obey, and how much; nothing if they have too few.
struct Obedience {
    std::optional<float> share;
    Motions motions;
};
Obedience obedience(const CoarseSearch& one, const CoarseSearch& other)
{
    LookUps<CoarseSearch> found(one, other);
    if (!found.haveStructure())
        return {};
    found.findBlocks(kFirstBlocks);
    return {found.followingShare(), {found.forward.motion(), found.backward.motion()}};
}
constexpr float kHopelessPreview = 0.20F; ///< no changed copy's preview obeys less

/// How much of the structure that should be in both tiles is in both, once the motion is undone; less when
/// the motion leaves little.
float commonShare(const FineSearch& one, const FeaturePrint::Tile& other, const LookUp<FineSearch>& found)
{
    constexpr float kLeastKept = 0.5F;
    const FineSearch undone(found.motion().undone(other), kBendReach);
    float common = 0;
    float kept = 0;
    float all = 0;
    for (const BlockFind& find : found.finds()) {
        all += find.texture;
        if (!found.motion().keepsInside(find.block))
            continue;
        kept += find.texture;
        common += find.texture * one.find(find.block, undone, kBendReach).correlation;
    }
    return kept > 0 ? common / std::max(kept, kLeastKept * all) : 0;
}

} // namespace

std::optional<float> FineCheck::agreement(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other,
                                          float least)
{
    constexpr float kHopeless = 0.22F; ///< no changed copy's first blocks obey less
    constexpr float kObedienceWeight = 0.2F;
    const Obedience preview =
        obedience(CoarseSearch(PictureOutline::halved(one)), CoarseSearch(PictureOutline::halved(other)));
    if (preview.share && *preview.share < kHopelessPreview)
        return preview.share;
    const FineSearch first(one);
    const FineSearch second(other);
    LookUps<FineSearch> found(first, second, preview.motions);
    if (!found.haveStructure())
        return std::nullopt;
    if (one == other)
        return 1.0F;
    found.findBlocks(kFirstBlocks);
    if (found.followingShare() < kHopeless)
        return found.followingShare();
    found.findBlocks(kAllBlocks);
    constexpr float kAll = 1.001F; // and more than is lost in rounding
    const auto agreementOf = [&](float forward, float backward) {
        return kObedienceWeight * found.followingShare() +
               (1 - kObedienceWeight) * ((forward + backward) / 2);
    };
    const float forward = commonShare(first, other, found.forward);
    if (const float most = agreementOf(forward, kAll); most < least)
        return most;
    return agreementOf(forward, commonShare(second, one, found.backward));
}

} // namespace orlen

#include "scan/photos/FineCheck.h"

#include "scan/photos/BlockSearch.h"
#include "scan/photos/CommonMotion.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

// Two pages of one layout, or two forms of one shop, agree in everything that is coarse. What tells them
// apart is whether the letters themselves are the same. So each block of one tile that has structure is
// looked for near its place in the other tile. Found alone means little, because some match can always be
// found in a text; but the blocks of changed copies of one picture have all moved together. So one common
// motion is fitted to all the finds, and how well they obey it counts a little. Then the motion is undone and
// the blocks are compared again where they must now be, which counts most: a turned copy agrees again,
// another page does not.

namespace orlen {

namespace {

constexpr int kSearchReach = 9; ///< pixels that pictures may have moved
constexpr int kBendReach = 2;   ///< pixels that parts may differ from the common motion

/// The blocks of one tile looked up in another.
class LookUp {
public:
    LookUp(const BlockSearch& one, const BlockSearch& other, const FeaturePrint::Tile& otherTile)
        : m_one(one), m_other(other), m_otherTile(otherTile), m_blocks(one.texturedBlocks())
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
        for (std::size_t i = m_finds.size(); i < std::min(count, m_blocks.size()); ++i)
            m_finds.push_back(m_one.find(m_blocks[i], m_other, kSearchReach));
        m_motion = CommonMotion::fitted(m_finds);
    }

    /// The share of the structure found so far that follows the motion.
    [[nodiscard]] float followingShare() const
    {
        float following = 0;
        float all = 0;
        for (const BlockFind& find : m_finds) {
            following += find.texture * find.correlation * m_motion.fit(find);
            all += find.texture;
        }
        return all > 0 ? following / all : 0;
    }

    /// How much of the structure that should be in both tiles is in both; less when the motion leaves little.
    [[nodiscard]] float commonShare() const
    {
        constexpr float kLeastKept = 0.5F;
        const BlockSearch undone(m_motion.undone(m_otherTile));
        float common = 0;
        float kept = 0;
        float all = 0;
        for (const BlockFind& find : m_finds) {
            all += find.texture;
            if (!m_motion.keepsInside(find.block))
                continue;
            kept += find.texture;
            common += find.texture * m_one.find(find.block, undone, kBendReach).correlation;
        }
        return kept > 0 ? common / std::max(kept, kLeastKept * all) : 0;
    }

    [[nodiscard]] float agreement() const
    {
        constexpr float kObedienceWeight = 0.2F;
        return kObedienceWeight * followingShare() + (1 - kObedienceWeight) * commonShare();
    }

private:
    const BlockSearch& m_one;
    const BlockSearch& m_other;
    const FeaturePrint::Tile& m_otherTile;
    std::vector<TilePlace> m_blocks;
    std::vector<BlockFind> m_finds;
    CommonMotion m_motion;
};

} // namespace

std::optional<float> FineCheck::agreement(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other)
{
    constexpr std::size_t kFirstBlocks = 16;
    constexpr float kHopeless = 0.22F; ///< no changed copy's first blocks obey less
    constexpr std::size_t kAllBlocks = std::numeric_limits<std::size_t>::max();
    const BlockSearch first(one);
    const BlockSearch second(other);
    LookUp forward(first, second, other);
    LookUp backward(second, first, one);
    if (!forward.hasStructure() && !backward.hasStructure())
        return std::nullopt;
    if (one == other)
        return 1.0F;
    forward.findBlocks(kFirstBlocks);
    backward.findBlocks(kFirstBlocks);
    const float obedient = (forward.followingShare() + backward.followingShare()) / 2;
    if (obedient < kHopeless)
        return obedient;
    forward.findBlocks(kAllBlocks);
    backward.findBlocks(kAllBlocks);
    return (forward.agreement() + backward.agreement()) / 2;
}

} // namespace orlen

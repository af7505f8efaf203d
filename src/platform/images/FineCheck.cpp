#include "platform/images/FineCheck.h"

#include "platform/images/BlockSearch.h"
#include "platform/images/CommonMotion.h"

#include <vector>

// Two pages of one layout, or two forms of one shop, agree in everything that is coarse. What tells them
// apart is whether the letters themselves are the same. So each block of one tile that has structure is
// looked for near its place in the other tile. Found alone means little, because some match can always be
// found in a text; but the blocks of changed copies of one picture have all moved together. One common motion
// is fitted to all the finds, and only finds that obey it count.

namespace orlen {

namespace {

/// How much of `one` is found in `other`.
float foundShare(const BlockSearch& one, const BlockSearch& other)
{
    const std::vector<BlockFind> finds = one.findIn(other);
    const CommonMotion motion = CommonMotion::fitted(finds);
    float found = 0;
    float all = 0;
    for (const BlockFind& find : finds) {
        found += find.texture * find.correlation * motion.obedience(find);
        all += find.texture;
    }
    return all > 0 ? found / all : 0;
}

} // namespace

float FineCheck::agreement(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other)
{
    const BlockSearch first(one);
    const BlockSearch second(other);
    return (foundShare(first, second) + foundShare(second, first)) / 2;
}

} // namespace orlen

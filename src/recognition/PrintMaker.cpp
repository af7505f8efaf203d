#include "recognition/PrintMaker.h"

#include "recognition/AreaScale.h"
#include "recognition/FineTile.h"
#include "recognition/LayoutDescriptor.h"
#include "recognition/PlainPicture.h"
#include "recognition/Projection.h"

#include <vector>

namespace orlen {

namespace {

static_assert(LayoutDescriptor::kSide == FeaturePrint::kTileSide);

} // namespace

std::optional<FeaturePrint> PrintMaker::printOf(const RgbImage& image)
{
    if (image.isEmpty())
        return std::nullopt;
    const std::vector<float> grey =
        AreaScale::scaledGrey(image, LayoutDescriptor::kSide, LayoutDescriptor::kSide);
    if (PlainPicture::isFlat(grey))
        return std::nullopt;
    return FeaturePrint(Projection::project(LayoutDescriptor::describe(image, grey)), FineTile::tileOf(grey));
}

} // namespace orlen

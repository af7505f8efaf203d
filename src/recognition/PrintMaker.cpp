#include "recognition/PrintMaker.h"

#include "recognition/AreaScale.h"
#include "recognition/FineTile.h"
#include "recognition/LayoutDescriptor.h"
#include "recognition/Projection.h"

#include <cmath>
#include <vector>

namespace orlen {

namespace {

static_assert(LayoutDescriptor::kSide == FeaturePrint::kTileSide);

/// Whether there is more to see than noise on a plain background.
bool hasStructure(const std::vector<float>& grey)
{
    constexpr double kLeastDeviation = 2;
    double sum = 0;
    double squares = 0;
    for (const float value : grey) {
        sum += value;
        squares += static_cast<double>(value) * value;
    }
    const double mean = sum / static_cast<double>(grey.size());
    return squares / static_cast<double>(grey.size()) - mean * mean >= kLeastDeviation * kLeastDeviation;
}

} // namespace

std::optional<FeaturePrint> PrintMaker::printOf(const RgbImage& image)
{
    if (image.isEmpty())
        return std::nullopt;
    const std::vector<float> grey =
        AreaScale::scaledGrey(image, LayoutDescriptor::kSide, LayoutDescriptor::kSide);
    if (!hasStructure(grey))
        return std::nullopt;
    return FeaturePrint(Projection::project(LayoutDescriptor::describe(image, grey)), FineTile::tileOf(grey));
}

} // namespace orlen

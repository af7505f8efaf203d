#include "recognition/PlainPicture.h"

#include "platform/images/FeaturePrint.h"
#include "recognition/AreaScale.h"

#include <algorithm>
#include <cstddef>

namespace orlen {

bool PlainPicture::isGrey(const RgbImage& image)
{
    constexpr int kLeastColour = 12;          // between the channels of a pixel
    constexpr std::size_t kOneColoured = 500; // in so many pixels is a speck
    constexpr std::size_t kChannels = 3;
    std::size_t coloured = 0;
    for (std::size_t i = 0; i + kChannels <= image.pixels.size(); i += kChannels) {
        const auto [least, most] = std::minmax({image.pixels[i], image.pixels[i + 1], image.pixels[i + 2]});
        coloured += most - least >= kLeastColour ? 1 : 0;
    }
    return coloured * kOneColoured <= image.pixels.size() / kChannels;
}

bool PlainPicture::isFlat(const RgbImage& image)
{
    return isFlat(AreaScale::scaledGrey(image, FeaturePrint::kTileSide, FeaturePrint::kTileSide));
}

bool PlainPicture::isFlat(const std::vector<float>& grey)
{
    constexpr double kLeastDeviation = 2;
    double sum = 0;
    double squares = 0;
    for (const float value : grey) {
        sum += value;
        squares += static_cast<double>(value) * value;
    }
    const auto count = static_cast<double>(std::max<std::size_t>(grey.size(), 1));
    const double mean = sum / count;
    return squares / count - mean * mean < kLeastDeviation * kLeastDeviation;
}

} // namespace orlen

#include "recognition/Sharpness.h"

#include "recognition/AreaScale.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

namespace {

constexpr double kLongestSide = 256;
constexpr int kShortestSide = 8;

/// A grey picture of whole numbers, as a screen would hold it.
struct GreyImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;

    [[nodiscard]] const std::uint8_t* row(int y) const
    {
        return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
};

GreyImage workingCopy(const RgbImage& image)
{
    const double scale = std::min(kLongestSide / std::max({image.width, image.height, 1}), 1.0);
    GreyImage grey{.width = std::max(static_cast<int>(scale * image.width), kShortestSide),
                   .height = std::max(static_cast<int>(scale * image.height), kShortestSide)};
    for (const float value : AreaScale::scaledGrey(image, grey.width, grey.height))
        grey.pixels.push_back(static_cast<std::uint8_t>(std::clamp(std::lround(value), 0L, 255L)));
    return grey;
}

} // namespace

double Sharpness::laplacianVariance(const RgbImage& image)
{
    if (image.isEmpty())
        return 0;
    const GreyImage grey = workingCopy(image);
    double sum = 0;
    double squares = 0;
    for (int y = 1; y < grey.height - 1; ++y) {
        const std::uint8_t* above = grey.row(y - 1);
        const std::uint8_t* row = grey.row(y);
        const std::uint8_t* below = grey.row(y + 1);
        for (int x = 1; x < grey.width - 1; ++x) {
            const int laplacian = 4 * row[x] - row[x + 1] - row[x - 1] - above[x] - below[x];
            sum += laplacian;
            squares += static_cast<double>(laplacian) * laplacian;
        }
    }
    const double count = static_cast<double>(grey.width - 2) * (grey.height - 2);
    const double mean = sum / count;
    return squares / count - mean * mean;
}

} // namespace orlen

#include "recognition/AreaScale.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orlen {

namespace {

constexpr std::size_t kChannels = 3;

/// The old pixels covered by one new pixel along an axis.
struct Cover {
    std::size_t first = 0;
    std::vector<float> shares; ///< of the new pixel; they add up to 1
};

std::vector<Cover> coversOf(int oldLength, int newLength)
{
    std::vector<Cover> covers(static_cast<std::size_t>(newLength));
    const double step = static_cast<double>(oldLength) / newLength;
    for (int i = 0; i < newLength; ++i) {
        const double begin = i * step;
        const double end = std::min((i + 1) * step, static_cast<double>(oldLength));
        const int first = std::min(static_cast<int>(begin), oldLength - 1);
        Cover& cover = covers[static_cast<std::size_t>(i)];
        cover.first = static_cast<std::size_t>(first);
        for (int old = first; old < oldLength && (old == first || old < end); ++old) {
            const double covered = std::min(end, old + 1.0) - std::max(begin, static_cast<double>(old));
            cover.shares.push_back(static_cast<float>(covered / (end - begin)));
        }
    }
    return covers;
}

/// The sum of the old rows covered by one new row.
void addRows(const RgbImage& image, const Cover& cover, std::vector<float>& sum)
{
    std::fill(sum.begin(), sum.end(), 0.0F);
    for (std::size_t i = 0; i < cover.shares.size(); ++i) {
        const std::uint8_t* row = image.row(static_cast<int>(cover.first + i));
        const float share = cover.shares[i];
        for (std::size_t x = 0; x < sum.size(); ++x)
            sum[x] += share * static_cast<float>(row[x]);
    }
}

} // namespace

std::vector<float> AreaScale::scaled(const RgbImage& image, int width, int height)
{
    if (image.isEmpty() || width <= 0 || height <= 0)
        return {};
    const std::vector<Cover> columns = coversOf(image.width, width);
    std::vector<float> sum(static_cast<std::size_t>(image.width) * kChannels);
    std::vector<float> pixels;
    pixels.reserve(RgbImage::byteCount(width, height));
    for (const Cover& rows : coversOf(image.height, height)) {
        addRows(image, rows, sum);
        for (const Cover& column : columns) {
            std::array<float, kChannels> pixel{};
            for (std::size_t i = 0; i < column.shares.size(); ++i) {
                const float* old = sum.data() + (column.first + i) * kChannels;
                for (std::size_t c = 0; c < kChannels; ++c)
                    pixel[c] += column.shares[i] * old[c];
            }
            pixels.insert(pixels.end(), pixel.begin(), pixel.end());
        }
    }
    return pixels;
}

std::vector<float> AreaScale::scaledGrey(const RgbImage& image, int width, int height)
{
    const std::vector<float> pixels = scaled(image, width, height);
    std::vector<float> grey(pixels.size() / kChannels);
    for (std::size_t i = 0; i < grey.size(); ++i) {
        const float* pixel = pixels.data() + i * kChannels;
        grey[i] = 0.299F * pixel[0] + 0.587F * pixel[1] + 0.114F * pixel[2];
    }
    return grey;
}

} // namespace orlen

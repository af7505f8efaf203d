#include "recognition/RowShrinker.h"

#include <algorithm>
#include <cmath>

namespace orlen {

namespace {

constexpr int kChannels = 3;
constexpr std::uint8_t kWhite = 255;

int shrunk(int length, double scale)
{
    return std::max(1, static_cast<int>(std::lround(length * scale)));
}

} // namespace

RowShrinker::RowShrinker(PixelSize picture, PixelSize box) : m_width(picture.width), m_height(picture.height)
{
    const double scale = std::min({1.0, static_cast<double>(box.width) / picture.width,
                                   static_cast<double>(box.height) / picture.height});
    m_image.width = shrunk(picture.width, scale);
    m_image.height = shrunk(picture.height, scale);
    m_sums.resize(RgbImage::byteCount(m_image.width, m_image.height));
    m_rows.resize(static_cast<std::size_t>(m_image.height));
}

int RowShrinker::columnStart(int column) const
{
    return static_cast<int>(std::int64_t{column} * m_width / m_image.width);
}

void RowShrinker::add(int y, std::span<const std::uint8_t> row)
{
    const auto target = static_cast<std::size_t>(std::int64_t{y} * m_image.height / m_height);
    std::uint32_t* sums = &m_sums[target * static_cast<std::size_t>(m_image.width) * kChannels];
    const std::uint8_t* pixel = row.data();
    for (int column = 0; column < m_image.width; ++column, sums += kChannels) {
        const std::uint8_t* const end = row.data() + std::ptrdiff_t{columnStart(column + 1)} * kChannels;
        for (; pixel < end; pixel += kChannels) {
            for (int channel = 0; channel < kChannels; ++channel)
                sums[channel] += pixel[channel];
        }
    }
    ++m_rows[target];
}

RgbImage RowShrinker::image() const
{
    RgbImage image = m_image;
    image.pixels.assign(m_sums.size(), kWhite);
    std::size_t at = 0;
    for (int y = 0; y < image.height; ++y) {
        const std::uint32_t rows = m_rows[static_cast<std::size_t>(y)];
        for (int x = 0; x < image.width; ++x) {
            const std::uint32_t count =
                rows * static_cast<std::uint32_t>(columnStart(x + 1) - columnStart(x));
            for (int channel = 0; channel < kChannels; ++channel, ++at) {
                if (count > 0)
                    image.pixels[at] = static_cast<std::uint8_t>((m_sums[at] + count / 2) / count);
            }
        }
    }
    return image;
}

} // namespace orlen

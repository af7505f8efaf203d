#include "recognition/LanczosScale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <vector>

namespace orlen {

namespace {

constexpr std::size_t kColours = 3;
constexpr double kLobes = 3;

/// The old pixels that one new pixel is made of, along an axis.
struct Taps {
    std::size_t first = 0;
    std::vector<float> weights; ///< they add up to 1
};

double lanczos(double x)
{
    if (x == 0)
        return 1;
    if (std::abs(x) >= kLobes)
        return 0;
    const double turn = std::numbers::pi * x;
    return kLobes * std::sin(turn) * std::sin(turn / kLobes) / (turn * turn);
}

std::vector<Taps> tapsOf(int oldLength, int newLength)
{
    const double step = static_cast<double>(oldLength) / newLength;
    std::vector<Taps> all(static_cast<std::size_t>(newLength));
    for (int i = 0; i < newLength; ++i) {
        const double middle = (i + 0.5) * step - 0.5;
        const int first = std::max(0, static_cast<int>(std::ceil(middle - kLobes * step)));
        const int last = std::min(oldLength - 1, static_cast<int>(std::floor(middle + kLobes * step)));
        Taps& taps = all[static_cast<std::size_t>(i)];
        taps.first = static_cast<std::size_t>(first);
        double sum = 0;
        for (int old = first; old <= last; ++old) {
            const double weight = lanczos((old - middle) / step);
            taps.weights.push_back(static_cast<float>(weight));
            sum += weight;
        }
        for (float& weight : taps.weights)
            weight = static_cast<float>(weight / sum);
    }
    return all;
}

using Row = std::vector<float>;

/// Adds several rows at once, which saves reading and writing the sums each time.
template <std::size_t count>
void addRows(const float* weights, const std::array<const float*, count>& rows, Row& sums)
{
    float* const sum = sums.data();
    for (std::size_t x = 0; x < sums.size(); ++x) {
        float value = sum[x];
        for (std::size_t i = 0; i < count; ++i)
            value += weights[i] * rows[i][x];
        sum[x] = value;
    }
}

/// The rows of a picture as numbers, of which only the last ones stay.
class LatestRows {
public:
    LatestRows(const LanczosScale::Pixels& picture, std::size_t kept)
        : m_picture(picture), m_length(RgbImage::byteCount(picture.size.width, 1)),
          m_rows(kept, Row(m_length))
    {
    }

    /// The weighted sum of rows; from one call to the next they only go on.
    void sum(const Taps& taps, Row& sums)
    {
        for (; m_next < taps.first + taps.weights.size(); ++m_next)
            std::copy_n(m_picture.start + m_next * m_length, m_length,
                        m_rows[m_next % m_rows.size()].begin());
        std::fill(sums.begin(), sums.end(), 0.0F);
        constexpr std::size_t kAtOnce = 4;
        std::size_t at = 0;
        for (; at + kAtOnce <= taps.weights.size(); at += kAtOnce) {
            const std::size_t row = taps.first + at;
            addRows<kAtOnce>(&taps.weights[at], {start(row), start(row + 1), start(row + 2), start(row + 3)},
                             sums);
        }
        for (; at < taps.weights.size(); ++at)
            addRows<1>(&taps.weights[at], {start(taps.first + at)}, sums);
    }

private:
    [[nodiscard]] const float* start(std::size_t row) const { return m_rows[row % m_rows.size()].data(); }

    LanczosScale::Pixels m_picture;
    std::size_t m_length;
    std::vector<Row> m_rows; ///< each at its number modulo their count
    std::size_t m_next = 0;
};

std::uint8_t byteOf(float value)
{
    constexpr float kMost = std::numeric_limits<std::uint8_t>::max();
    return static_cast<std::uint8_t>(std::clamp(value + 0.5F, 0.0F, kMost));
}

} // namespace

RgbImage LanczosScale::scaledDown(const Pixels& picture, PixelSize size)
{
    if (picture.size.width <= 0 || picture.size.height <= 0 || size.width <= 0 || size.height <= 0)
        return {};
    const std::vector<Taps> columns = tapsOf(picture.size.width, size.width);
    const std::vector<Taps> rows = tapsOf(picture.size.height, size.height);
    std::size_t most = 0;
    for (const Taps& taps : rows)
        most = std::max(most, taps.weights.size());
    LatestRows latest(picture, most);
    Row sums(RgbImage::byteCount(picture.size.width, 1));
    RgbImage small{size.width, size.height, {}};
    small.pixels.reserve(RgbImage::byteCount(size.width, size.height));
    for (const Taps& row : rows) {
        latest.sum(row, sums);
        for (const Taps& column : columns) {
            const float* old = sums.data() + column.first * kColours;
            std::array<float, kColours> pixel{};
            for (const float weight : column.weights) {
                for (std::size_t c = 0; c < kColours; ++c)
                    pixel[c] += weight * old[c];
                old += kColours;
            }
            for (const float value : pixel)
                small.pixels.push_back(byteOf(value));
        }
    }
    return small;
}

} // namespace orlen

#include "recognition/LayoutDescriptor.h"

#include "recognition/AreaScale.h"
#include "recognition/EdgeDirections.h"
#include "recognition/LabColour.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>

namespace orlen {

namespace {

using LayoutDescriptor::kColourCells;
using LayoutDescriptor::kLightCells;
using LayoutDescriptor::kSide;

float meanOf(std::span<const float> values)
{
    return std::accumulate(values.begin(), values.end(), 0.0F) / static_cast<float>(values.size());
}

float lengthOf(std::span<const float> values)
{
    return std::sqrt(std::inner_product(values.begin(), values.end(), values.begin(), 0.0F));
}

/// Where it is light and dark, regardless of exposure and contrast.
std::vector<float> lightOf(const std::vector<float>& grey)
{
    constexpr int kCell = kSide / kLightCells;
    std::vector<float> cells(static_cast<std::size_t>(kLightCells) * kLightCells);
    for (std::size_t y = 0; y < kSide; ++y) {
        for (std::size_t x = 0; x < kSide; ++x)
            cells[y / kCell * kLightCells + x / kCell] += grey[y * kSide + x] / (kCell * kCell);
    }
    const float mean = meanOf(cells);
    for (float& cell : cells)
        cell -= mean;
    return cells;
}

/// Most of the mean colour is removed, because cameras disagree about white.
std::vector<float> coloursOf(const RgbImage& image)
{
    constexpr float kMeanShare = 0.7F;
    const std::vector<float> cells = AreaScale::scaled(image, kColourCells, kColourCells);
    constexpr std::size_t kCount = static_cast<std::size_t>(kColourCells) * kColourCells;
    std::vector<float> colours(2 * kCount);
    for (std::size_t i = 0; i < kCount; ++i) {
        const LabColour colour = LabColour::fromRgb(cells[3 * i], cells[3 * i + 1], cells[3 * i + 2]);
        colours[i] = colour.a;
        colours[kCount + i] = colour.b;
    }
    for (const std::span<float> axis : {std::span(colours).first(kCount), std::span(colours).last(kCount)}) {
        const float mean = meanOf(axis);
        for (float& value : axis)
            value -= kMeanShare * mean;
    }
    return colours;
}

/// Appends a part scaled to the length `weight`. A part with almost nothing in it stays short: values below
/// the root mean square `noise` mean little.
class Parts {
public:
    void add(const std::vector<float>& part, float noise, float weight)
    {
        const float floor = noise * std::sqrt(static_cast<float>(part.size()));
        const float scale = weight / std::max(std::hypot(lengthOf(part), floor), 1e-6F);
        for (const float value : part)
            m_vector[m_used++] = scale * value;
    }

    [[nodiscard]] LayoutDescriptor::Vector normalised() const
    {
        LayoutDescriptor::Vector vector = m_vector;
        const float length = std::max(lengthOf(vector), 1e-6F);
        for (float& value : vector)
            value /= length;
        return vector;
    }

private:
    LayoutDescriptor::Vector m_vector{};
    std::size_t m_used = 0;
};

} // namespace

LayoutDescriptor::Vector LayoutDescriptor::describe(const RgbImage& image, const std::vector<float>& grey)
{
    Parts parts;
    parts.add(lightOf(grey), 2.0F, 0.7F);
    parts.add(coloursOf(image), 2.0F, 0.7F);
    parts.add(EdgeDirections::of(grey), 0.05F, 1.5F);
    return parts.normalised();
}

} // namespace orlen

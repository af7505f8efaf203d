#include "recognition/EdgeDirections.h"

#include "recognition/LayoutDescriptor.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <numeric>

namespace orlen {

namespace {

using LayoutDescriptor::kDirections;
using LayoutDescriptor::kEdgeCells;
using LayoutDescriptor::kSide;

constexpr int kEdgeCell = kSide / kEdgeCells;
using Planes = std::array<std::vector<float>, kDirections>;

std::size_t at(int x, int y)
{
    return static_cast<std::size_t>(y) * kSide + static_cast<std::size_t>(x);
}

/// The strength of each pixel's edge, shared between the two nearest directions.
Planes directionPlanes(const std::vector<float>& grey)
{
    Planes planes;
    planes.fill(std::vector<float>(grey.size()));
    for (int y = 1; y < kSide - 1; ++y) {
        for (int x = 1; x < kSide - 1; ++x) {
            const float dx = grey[at(x + 1, y)] - grey[at(x - 1, y)];
            const float dy = grey[at(x, y + 1)] - grey[at(x, y - 1)];
            const float turn = std::atan2(dy, dx) / (2 * std::numbers::pi_v<float>)+1.0F;
            const float direction = turn * kDirections;
            const float below = std::floor(direction);
            const float share = direction - below;
            const float strength = std::sqrt(dx * dx + dy * dy);
            const auto first = static_cast<std::size_t>(below);
            planes[first % kDirections][at(x, y)] += (1 - share) * strength;
            planes[(first + 1) % kDirections][at(x, y)] += share * strength;
        }
    }
    return planes;
}

/// The weight of each row or column for each row of cells: a bell around the cell's middle that reaches into
/// its neighbours, so that small shifts change little.
using Windows = std::array<std::array<float, kSide>, kEdgeCells>;

Windows makeWindows()
{
    constexpr float kSigma = kEdgeCell / 2.0F;
    Windows windows{};
    for (int cell = 0; cell < kEdgeCells; ++cell) {
        std::array<float, kSide>& window = windows[static_cast<std::size_t>(cell)];
        for (int i = 0; i < kSide; ++i) {
            const float away = (static_cast<float>(i - cell * kEdgeCell) - (kEdgeCell - 1) / 2.0F) / kSigma;
            window[static_cast<std::size_t>(i)] = std::exp(-0.5F * away * away);
        }
        const float sum = std::accumulate(window.begin(), window.end(), 0.0F);
        for (float& weight : window)
            weight /= sum;
    }
    return windows;
}

/// Appends the plane's weighted mean in each cell, row by row from the top.
void appendCells(const std::vector<float>& plane, const Windows& windows, std::vector<float>& cells)
{
    for (const std::array<float, kSide>& rows : windows) {
        std::array<float, kSide> sums{};
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x)
                sums[static_cast<std::size_t>(x)] += rows[static_cast<std::size_t>(y)] * plane[at(x, y)];
        }
        for (const std::array<float, kSide>& columns : windows)
            cells.push_back(std::inner_product(sums.begin(), sums.end(), columns.begin(), 0.0F));
    }
}

} // namespace

std::vector<float> EdgeDirections::of(const std::vector<float>& grey)
{
    constexpr float kMeanShare = 0.8F;
    static const Windows windows = makeWindows();
    std::vector<float> cells;
    for (const std::vector<float>& plane : directionPlanes(grey))
        appendCells(plane, windows, cells);
    for (float& cell : cells)
        cell = std::sqrt(cell);
    const float mean = std::accumulate(cells.begin(), cells.end(), 0.0F) / static_cast<float>(cells.size());
    for (float& cell : cells)
        cell -= kMeanShare * mean;
    return cells;
}

} // namespace orlen

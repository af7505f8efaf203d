#include "scan/photos/CommonMotion.h"

#include "scan/photos/PixelPairs.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

// All that takes or returns wide lanes is inlined, so it does not matter how they would be passed on.
#pragma GCC diagnostic ignored "-Wpsabi"

namespace orlen {

namespace {

// Each round of a fit ends with a chain of divisions, for which the next one waits. So two fits are made side
// by side: the lower half of the lanes is of one, the upper half of the other.

using Lanes [[gnu::vector_size(2 * kLanes * sizeof(float))]] = float;
using HalfLanes [[gnu::vector_size(kLanes * sizeof(float))]] = float;
/// The ways to the right and down of one fit, and then of the other.
using Axes [[gnu::vector_size(4 * sizeof(double))]] = double;
using Row = std::array<Axes, 3>;

/// Some finds of either fit, as far as it needs them.
template <typename Numbers>
struct FindsOf {
    Numbers x{};      ///< of the block's middle, from the tile's
    Numbers y{};      ///< as x
    Numbers moveX{};  ///< pixels
    Numbers moveY{};  ///< pixels
    Numbers weight{}; ///< 0 in a lane without a find
};
using Finds = FindsOf<std::array<float, std::size_t{2} * kLanes>>;
using LoadedFinds = FindsOf<Lanes>;

ORLEN_INLINE LoadedFinds loaded(const Finds& finds)
{
    LoadedFinds some;
    load(some.x, finds.x.data());
    load(some.y, finds.y.data());
    load(some.moveX, finds.moveX.data());
    load(some.moveY, finds.moveY.data());
    load(some.weight, finds.weight.data());
    return some;
}

/// (l0 + l1) + (l2 + l3) of each half, for both axes.
ORLEN_INLINE Axes sumsOf(const Lanes& right, const Lanes& down)
{
    const auto halfSums = [](const Axes& one, const Axes& other) __attribute__((always_inline))
    {
        return __builtin_shufflevector(one, other, 0, 4, 2, 6) +
               __builtin_shufflevector(one, other, 1, 5, 3, 7);
    };
    const auto lower = [](const Lanes& lanes) __attribute__((always_inline))
    {
        return __builtin_convertvector(__builtin_shufflevector(lanes, lanes, 0, 1, 2, 3), Axes);
    };
    const auto upper = [](const Lanes& lanes) __attribute__((always_inline))
    {
        return __builtin_convertvector(__builtin_shufflevector(lanes, lanes, 4, 5, 6, 7), Axes);
    };
    const Axes one = halfSums(lower(right), lower(down));
    const Axes other = halfSums(upper(right), upper(down));
    return __builtin_shufflevector(one, other, 0, 1, 4, 5) + __builtin_shufflevector(one, other, 2, 3, 6, 7);
}

/// One of a motion's numbers, for all lanes.
struct Spread {
    Lanes right{};
    Lanes down{};
};
ORLEN_INLINE Spread spread(const Axes& axes)
{
    const HalfLanes numbers = __builtin_convertvector(axes, HalfLanes);
    return {__builtin_shufflevector(numbers, numbers, 0, 0, 0, 0, 2, 2, 2, 2),
            __builtin_shufflevector(numbers, numbers, 1, 1, 1, 1, 3, 3, 3, 3)};
}

/// Least squares for the three numbers of either axis.
struct Normals {
    // Of the weights, and of their products with what is named.
    Lanes ones{};
    Lanes x{};
    Lanes y{};
    Lanes xx{};
    Lanes xy{};
    Lanes yy{};
    std::array<Lanes, 3> right{};
    std::array<Lanes, 3> down{};

    ORLEN_INLINE void add(const LoadedFinds& finds, const Lanes& weight)
    {
        const Lanes byX = weight * finds.x;
        const Lanes byY = weight * finds.y;
        ones += weight;
        x += byX;
        y += byY;
        xx += byX * finds.x;
        xy += byX * finds.y;
        yy += byY * finds.y;
        right[0] += weight * finds.moveX;
        right[1] += byX * finds.moveX;
        right[2] += byY * finds.moveX;
        down[0] += weight * finds.moveY;
        down[1] += byX * finds.moveY;
        down[2] += byY * finds.moveY;
    }

    /// By elimination; the diagonal is never 0 because of what is added to it.
    [[nodiscard]] ORLEN_INLINE Row solved() const
    {
        constexpr double kNothing = 1e-9;
        constexpr double kStiffness = 0.02; ///< ridge on rotation and stretch, relative to the total weight
        const Axes total = sumsOf(ones, ones) + kNothing;
        const Axes ridge = kStiffness * total;
        const Axes sumX = sumsOf(x, x);
        const Axes sumY = sumsOf(y, y);
        const Axes sumXY = sumsOf(xy, xy);
        std::array<Row, 3> m{Row{total, sumX, sumY}, Row{sumX, sumsOf(xx, xx) + ridge, sumXY},
                             Row{sumY, sumXY, sumsOf(yy, yy) + ridge}};
        Row r{sumsOf(right[0], down[0]), sumsOf(right[1], down[1]), sumsOf(right[2], down[2])};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t below = i + 1; below < 3; ++below) {
                const Axes share = m[below][i] / m[i][i];
                for (std::size_t j = i; j < 3; ++j)
                    m[below][j] -= share * m[i][j];
                r[below] -= share * r[i];
            }
        }
        for (std::size_t i = 3; i-- > 0;) {
            for (std::size_t j = i + 1; j < 3; ++j)
                r[i] -= m[i][j] * r[j];
            r[i] /= m[i][i];
        }
        return r;
    }
};

/// From the tile's middle, -1 to 1 from side to side.
float fromMiddle(float pixel)
{
    constexpr float kHalf = (FineSearch::kSide - 1) / 2.0F;
    return pixel / kHalf - 1;
}

float middleOf(int block)
{
    return static_cast<float>(block) + (FineSearch::kBlock - 1) / 2.0F;
}

bool isInside(float at)
{
    return at >= 0 && at <= FineSearch::kSide - 1;
}

std::vector<Finds> inLanes(const std::array<std::span<const BlockFind>, 2>& fits)
{
    std::vector<Finds> all((std::max(fits[0].size(), fits[1].size()) + kLanes - 1) / kLanes);
    for (std::size_t fit = 0; fit < fits.size(); ++fit) {
        for (std::size_t i = 0; i < fits[fit].size(); ++i) {
            const BlockFind& find = fits[fit][i];
            Finds& some = all[i / kLanes];
            const std::size_t lane = fit * kLanes + i % kLanes;
            some.x[lane] = fromMiddle(middleOf(find.block.x));
            some.y[lane] = fromMiddle(middleOf(find.block.y));
            some.moveX[lane] = find.moveX;
            some.moveY[lane] = find.moveY;
            some.weight[lane] = find.texture * find.correlation * find.correlation;
        }
    }
    return all;
}

ORLEN_INLINE void fitInLanes(std::span<const Finds> finds, Row& result)
{
    constexpr int kRounds = 6;
    constexpr float kTolerance = 1.5F; ///< pixels off at which a match counts half
    for (int round = 0; round < kRounds; ++round) {
        Normals normals;
        const std::array<Spread, 3> motion{spread(result[0]), spread(result[1]), spread(result[2])};
        for (const Finds& next : finds) {
            const LoadedFinds some = loaded(next);
            if (round == 0) {
                normals.add(some, some.weight);
                continue;
            }
            const Lanes missX =
                some.moveX - (motion[0].right + motion[1].right * some.x + motion[2].right * some.y);
            const Lanes missY =
                some.moveY - (motion[0].down + motion[1].down * some.x + motion[2].down * some.y);
            normals.add(some, some.weight /
                                  (1.0F + (missX * missX + missY * missY) * (1 / (kTolerance * kTolerance))));
        }
        result = normals.solved();
    }
}

ORLEN_WIDE void fitInWideLanes(std::span<const Finds> finds, Row& result)
{
    fitInLanes(finds, result);
}

} // namespace

CommonMotion CommonMotion::fitted(std::span<const BlockFind> finds)
{
    return fitted(finds, {})[0];
}

std::array<CommonMotion, 2> CommonMotion::fitted(std::span<const BlockFind> one,
                                                 std::span<const BlockFind> other)
{
    const std::vector<Finds> finds = inLanes({one, other});
    Row axes{};
    if (WideLanes::areUsed())
        fitInWideLanes(finds, axes);
    else
        fitInLanes(finds, axes);
    std::array<CommonMotion, 2> motions;
    for (std::size_t i = 0; i < axes.size(); ++i) {
        for (std::size_t fit = 0; fit < motions.size(); ++fit) {
            motions[fit].m_x[i] = static_cast<float>(axes[i][2 * fit]);
            motions[fit].m_y[i] = static_cast<float>(axes[i][2 * fit + 1]);
        }
    }
    return motions;
}

CommonMotion::Point CommonMotion::moveAt(float x, float y) const
{
    const float right = fromMiddle(x);
    const float down = fromMiddle(y);
    return {.x = m_x[0] + m_x[1] * right + m_x[2] * down, .y = m_y[0] + m_y[1] * right + m_y[2] * down};
}

CommonMotion::Point CommonMotion::target(TilePlace pixel) const
{
    const auto x = static_cast<float>(pixel.x);
    const auto y = static_cast<float>(pixel.y);
    const Point move = moveAt(x, y);
    return {.x = x + move.x, .y = y + move.y};
}

float CommonMotion::squaredMiss(const BlockFind& find) const
{
    const Point move = moveAt(middleOf(find.block.x), middleOf(find.block.y));
    const float x = find.moveX - move.x;
    const float y = find.moveY - move.y;
    return x * x + y * y;
}

float CommonMotion::fit(const BlockFind& find) const
{
    constexpr float kSquaredLimit = 2.0F * 2.0F;
    const float miss = squaredMiss(find) / kSquaredLimit;
    return 1 / (1 + miss * miss);
}

float CommonMotion::followingShare(std::span<const BlockFind> finds) const
{
    float following = 0;
    float all = 0;
    for (const BlockFind& found : finds) {
        following += found.texture * found.correlation * fit(found);
        all += found.texture;
    }
    return all > 0 ? following / all : 0;
}

FeaturePrint::Tile CommonMotion::undone(const FeaturePrint::Tile& tile) const
{
    FeaturePrint::Tile result{};
    for (int y = 0; y < FineSearch::kSide; ++y) {
        // The same step from each pixel of a row to the next.
        const Point first = target({0, y});
        const Point second = target({1, y});
        const auto row = std::span(result).subspan(static_cast<std::size_t>(y) * FineSearch::kSide);
        BentRow::fill(tile, first, {.x = second.x - first.x, .y = second.y - first.y},
                      row.first<FineSearch::kSide>());
    }
    return result;
}

bool CommonMotion::keepsInside(TilePlace block) const
{
    constexpr int kFar = FineSearch::kBlock - 1;
    // The motion keeps straight lines straight, so the corners tell.
    for (const TilePlace corner :
         {TilePlace{0, 0}, TilePlace{kFar, 0}, TilePlace{0, kFar}, TilePlace{kFar, kFar}}) {
        const Point there = target({block.x + corner.x, block.y + corner.y});
        if (!isInside(there.x) || !isInside(there.y))
            return false;
    }
    return true;
}

} // namespace orlen

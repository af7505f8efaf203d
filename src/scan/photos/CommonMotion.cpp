#include "scan/photos/CommonMotion.h"

#include "scan/photos/PixelPairs.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

namespace {

using Row = std::array<double, 3>;

/// Some finds, in lanes, as far as the fit needs them.
struct Finds {
    FloatLanes x{};      ///< of the block's middle, from the tile's
    FloatLanes y{};      ///< as x
    FloatLanes moveX{};  ///< pixels
    FloatLanes moveY{};  ///< pixels
    FloatLanes weight{}; ///< 0 in a lane without a find
};

double sumOf(FloatLanes lanes)
{
    return (double{lanes[0]} + double{lanes[1]}) + (double{lanes[2]} + double{lanes[3]});
}

/// Least squares for the three numbers of either axis.
struct Normals {
    // Of the weights, and of their products with what is named.
    FloatLanes ones{};
    FloatLanes x{};
    FloatLanes y{};
    FloatLanes xx{};
    FloatLanes xy{};
    FloatLanes yy{};
    std::array<FloatLanes, 3> rightX{};
    std::array<FloatLanes, 3> rightY{};

    void add(const Finds& finds, FloatLanes weight)
    {
        const FloatLanes byX = weight * finds.x;
        const FloatLanes byY = weight * finds.y;
        ones += weight;
        x += byX;
        y += byY;
        xx += byX * finds.x;
        xy += byX * finds.y;
        yy += byY * finds.y;
        rightX[0] += weight * finds.moveX;
        rightX[1] += byX * finds.moveX;
        rightX[2] += byY * finds.moveX;
        rightY[0] += weight * finds.moveY;
        rightY[1] += byX * finds.moveY;
        rightY[2] += byY * finds.moveY;
    }

    /// By elimination; the diagonal is never 0 because of what is added to it.
    [[nodiscard]] std::array<std::array<float, 3>, 2> solved() const
    {
        constexpr double kNothing = 1e-9;
        constexpr double kStiffness = 0.02; ///< ridge on rotation and stretch, relative to the total weight
        const double total = sumOf(ones) + kNothing;
        const double ridge = kStiffness * total;
        std::array<Row, 3> m{Row{total, sumOf(x), sumOf(y)}, Row{sumOf(x), sumOf(xx) + ridge, sumOf(xy)},
                             Row{sumOf(y), sumOf(xy), sumOf(yy) + ridge}};
        std::array<std::array<float, 3>, 2> axes{};
        std::array<Row, 2> rights{Row{sumOf(rightX[0]), sumOf(rightX[1]), sumOf(rightX[2])},
                                  Row{sumOf(rightY[0]), sumOf(rightY[1]), sumOf(rightY[2])}};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t below = i + 1; below < 3; ++below) {
                const double share = m[below][i] / m[i][i];
                for (std::size_t j = i; j < 3; ++j)
                    m[below][j] -= share * m[i][j];
                for (Row& r : rights)
                    r[below] -= share * r[i];
            }
        }
        for (std::size_t axis = 0; axis < rights.size(); ++axis) {
            Row& r = rights[axis];
            for (std::size_t i = 3; i-- > 0;) {
                for (std::size_t j = i + 1; j < 3; ++j)
                    r[i] -= m[i][j] * r[j];
                r[i] /= m[i][i];
                axes[axis][i] = static_cast<float>(r[i]);
            }
        }
        return axes;
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

std::vector<Finds> inLanes(std::span<const BlockFind> finds)
{
    std::vector<Finds> all((finds.size() + kLanes - 1) / kLanes);
    for (std::size_t i = 0; i < finds.size(); ++i) {
        const BlockFind& find = finds[i];
        Finds& some = all[i / kLanes];
        const std::size_t lane = i % kLanes;
        some.x[lane] = fromMiddle(middleOf(find.block.x));
        some.y[lane] = fromMiddle(middleOf(find.block.y));
        some.moveX[lane] = find.moveX;
        some.moveY[lane] = find.moveY;
        some.weight[lane] = find.texture * find.correlation * find.correlation;
    }
    return all;
}

} // namespace

CommonMotion CommonMotion::fitted(std::span<const BlockFind> finds)
{
    constexpr int kRounds = 6;
    constexpr float kTolerance = 1.5F; ///< pixels off at which a match counts half
    const std::vector<Finds> all = inLanes(finds);
    CommonMotion motion;
    for (int round = 0; round < kRounds; ++round) {
        Normals normals;
        for (const Finds& some : all) {
            if (round == 0) {
                normals.add(some, some.weight);
                continue;
            }
            const FloatLanes missX =
                some.moveX - (motion.m_x[0] + motion.m_x[1] * some.x + motion.m_x[2] * some.y);
            const FloatLanes missY =
                some.moveY - (motion.m_y[0] + motion.m_y[1] * some.x + motion.m_y[2] * some.y);
            normals.add(some, some.weight /
                                  (1.0F + (missX * missX + missY * missY) * (1 / (kTolerance * kTolerance))));
        }
        const auto axes = normals.solved();
        motion.m_x = axes[0];
        motion.m_y = axes[1];
    }
    return motion;
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
